#include <gtest/gtest.h>
#include <unicode/locid.h>

#include "store/AppState.h"
#include "store/DayIndex.h"
#include "support/Fixtures.h"

using namespace std::chrono_literals;

namespace {

const Instant kNow = utc("2026-11-20 12:00:00");

TEST(DayIndexTest, CountsWholeDaysSinceAPastStartAndTakesTheBudgetsLeadingInteger) {
    for (const auto& [ago, days] : {std::pair(36h, 1), std::pair(23h, 0)}) {
        AppState state;
        state.todayIndex = state.dayIndex = 7;
        state.profileRows = {{"1850.5", standardDescription(kNow - ago)}};
        LogCapture log;
        computeDayIndex(state, kNow);
        EXPECT_EQ(std::tuple(state.todayIndex, state.dayIndex, state.calorieBudgetValue),
                  std::tuple(days, days, 1850));
        EXPECT_TRUE(log.contains("counterValue 1850"));
        EXPECT_TRUE(log.contains("2026-11-20 12:00:00 +0000 current   Start " +
                                 standardDescription(kNow - ago)));
        EXPECT_TRUE(log.contains("start is earlier than current"));
        EXPECT_TRUE(log.contains(std::to_string(days)));
        EXPECT_TRUE(log.contains(std::to_string(days) + " " + std::to_string(days)));
    }
}

TEST(DayIndexTest, FutureOrUnreadableStartsLeaveTheIndexes) {
    // Years an Instant cannot count are no date either (the start pattern's own test).
    for (const std::string& start : {standardDescription(kNow + 1h), std::string("soon"),
                                     std::string("2263-01-01 00:00:00 +0000")}) {
        AppState state;
        state.todayIndex = state.dayIndex = 3;
        state.profileRows = {{"2400", start}};
        LogCapture log;
        computeDayIndex(state, kNow);
        EXPECT_EQ(std::tuple(state.todayIndex, state.dayIndex), std::tuple(3, 3)) << start;
        EXPECT_FALSE(log.contains("start is earlier than current"));
        EXPECT_EQ(log.contains("dates are the same"), start != standardDescription(kNow + 1h));
    }
}

// Whatever the device's calendar and digits, the set-up's start date is read back as written.
TEST(DayIndexTest, TheStartDateReadsBackInEveryLocaleAndZone) {
    const icu::Locale device = icu::Locale::getDefault();
    int32_t count = 0;
    const icu::Locale* locales = icu::Locale::getAvailableLocales(count);
    ASSERT_GT(count, 500);
    std::vector<std::string> wrong;
    AppState state;
    for (const char* zone :
         {"UTC", "Asia/Kolkata", "America/St_Johns", "Pacific/Chatham", "America/Los_Angeles"}) {
        ScopedTimeZone scoped(zone);
        // 40 days and 3 hours: a clock change on the way cannot make it another whole day.
        state.profileRows = {{"1850", standardDescription(kNow - 24h * 40 - 3h)}};
        for (int32_t i = 0; i < count; ++i) {
            UErrorCode status = U_ZERO_ERROR;
            icu::Locale::setDefault(locales[i], status);
            state.todayIndex = -1;
            computeDayIndex(state, kNow);
            if (state.todayIndex != 40)
                wrong.push_back(std::string(locales[i].getName()) + " " + zone);
        }
    }
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale::setDefault(device, status);
    EXPECT_EQ(wrong, std::vector<std::string>{});
}

// Ending is exit status 1 with the cause and the file named: no abort, no core dump.
TEST(DayIndexDeathTest, WithoutAPlanOrADayRecordTheProgramEndsWithAMessage) {
    AppState state;
    state.databasePath = "/data/food.db";
    EXPECT_EXIT(computeDayIndex(state, Clock::now()), testing::ExitedWithCode(1),
                "calorie-counter: the plan in /data/food.db has no profile record");

    state.dailyRows.resize(8);
    state.todayIndex = 8;
    EXPECT_EXIT(
        dayRecord(state, 8), testing::ExitedWithCode(1),
        "the plan in /data/food.db has no day record for today \\(day 9 of an 8-day plan\\)");
    state.todayIndex = 20;  // the Log view stepping onto a day that is not today
    EXPECT_EXIT(dayRecord(state, 11), testing::ExitedWithCode(1),
                "has no day record for day 12 of an 8-day plan");
    EXPECT_EQ(&dayRecord(state, 7), &state.dailyRows[7]);
}

}  // namespace
