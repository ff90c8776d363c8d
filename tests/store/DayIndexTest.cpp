#include <gtest/gtest.h>
#include <unicode/locid.h>

#include "store/AppState.h"
#include "store/DayIndex.h"
#include "support/Fixtures.h"

using namespace std::chrono_literals;

namespace {

class DayIndexTest : public testing::Test {
protected:
    void startAt(Instant start, std::string budget = "1850") {
        state.profileRows = {{budget, standardDescription(start)}};
    }
    AppState state;
    const Instant now = utc("2026-11-20 12:00:00");
};

TEST_F(DayIndexTest, CountsWholeDaysSinceTheStart) {
    startAt(now - 36h);
    LogCapture log;
    computeDayIndex(state, now);
    EXPECT_EQ(state.todayIndex, 1);
    EXPECT_EQ(state.dayIndex, 1);
    EXPECT_EQ(state.calorieBudgetValue, 1850);
    EXPECT_TRUE(log.contains("counterValue 1850"));
    EXPECT_TRUE(log.contains("2026-11-20 12:00:00 +0000 current   Start 2026-11-19 00:00:00 +0000"));
    EXPECT_TRUE(log.contains("1 1"));
}

TEST_F(DayIndexTest, LessThanADayAgoIsDayZero) {
    state.todayIndex = state.dayIndex = 7;
    startAt(now - 23h);
    LogCapture log;
    computeDayIndex(state, now);
    EXPECT_TRUE(log.contains("start is earlier than current"));
    EXPECT_TRUE(log.contains("0"));
    EXPECT_EQ(state.todayIndex, 0);
    EXPECT_EQ(state.dayIndex, 0);
}

TEST_F(DayIndexTest, FutureOrUnreadableStartsLeaveTheIndexes) {
    state.todayIndex = state.dayIndex = 3;
    // Years an Instant cannot count are no date either, in the past as in the future.
    for (const std::string& start :
         {standardDescription(now + 1h), std::string("soon"), std::string(),
          std::string("1600-01-01 00:00:00 +0000"), std::string("2263-01-01 00:00:00 +0000")}) {
        state.profileRows = {{"2400", start}};
        LogCapture log;
        computeDayIndex(state, now);
        EXPECT_EQ(state.todayIndex, 3) << start;
        EXPECT_EQ(state.dayIndex, 3) << start;
        EXPECT_FALSE(log.contains("start is earlier than current"));
        EXPECT_EQ(log.contains("dates are the same"), start != standardDescription(now + 1h));
    }
}

TEST_F(DayIndexTest, BudgetIsTheLeadingInteger) {
    startAt(now, "1850.5");
    computeDayIndex(state, now);
    EXPECT_EQ(state.calorieBudgetValue, 1850);
    startAt(now, "none");
    computeDayIndex(state, now);
    EXPECT_EQ(state.calorieBudgetValue, 0);
}

// Whatever the device's calendar and digits, the set-up's start date is read back as written.
TEST_F(DayIndexTest, TheStartDateReadsBackInEveryLocaleAndZone) {
    const icu::Locale device = icu::Locale::getDefault();
    int32_t count = 0;
    const icu::Locale* locales = icu::Locale::getAvailableLocales(count);
    ASSERT_GT(count, 500);
    std::vector<std::string> wrong;
    for (const char* zone :
         {"UTC", "Asia/Kolkata", "America/St_Johns", "Pacific/Chatham", "America/Los_Angeles"}) {
        ScopedTimeZone scoped(zone);
        // 40 days and 3 hours: a clock change on the way cannot make it another whole day.
        const std::string written = standardDescription(now - 24h * 40 - 3h);
        for (int32_t i = 0; i < count; ++i) {
            UErrorCode status = U_ZERO_ERROR;
            icu::Locale::setDefault(locales[i], status);
            state.profileRows = {{"1850", written}};
            state.todayIndex = state.dayIndex = -1;
            computeDayIndex(state, now);
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
