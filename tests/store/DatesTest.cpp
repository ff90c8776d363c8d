// The texts a plan's numbers and dates are read from: the boundaries. The fuzzers read far more
// of them; the set-up's tests check the labels and the week-based year.
#include <gtest/gtest.h>
#include <unicode/locid.h>

#include "store/AppState.h"
#include "store/DayIndex.h"
#include "store/TextValue.h"
#include "support/Fixtures.h"

using namespace std::chrono_literals;

namespace {

const Instant kNow = utc("2026-11-20 12:00:00");

TEST(TextValue, IntegerReadsLeadingDigitsOnlyAndSaturatesInsteadOfOverflowing) {
    const std::pair<const char*, int32_t> ints[] = {
        {"1850", 1850}, {"1850.5", 1850}, {"175 cm", 175}, {"  \t-42x", -42}, {"+7", 7},
        {"", 0}, {"abc", 0}, {"- 5", 0}, {"Today, 12", 0},
        {"2147483647", INT32_MAX}, {"2147483648", INT32_MAX}, {"-2147483648", INT32_MIN},
        {"-99999999999999999999", INT32_MIN}};
    for (const auto& [text, value] : ints) EXPECT_EQ(intValue(text), value) << text;
    const std::pair<const char*, int64_t> longs[] = {
        {"9223372036854775807", INT64_MAX}, {"-9223372036854775808", INT64_MIN},
        {"99999999999999999999", INT64_MAX}, {"4294967296", 4294967296}};
    for (const auto& [text, value] : longs) EXPECT_EQ(integerValue(text), value) << text;
}

TEST(TextValue, FloatReadsTheLongestLeadingDecimalNumber) {
    // "70.3": the float nearest 70.3, not the double; hexadecimal and "inf" are no decimal number.
    const std::pair<const char*, float> floats[] = {
        {"  72.5kg", 72.5f}, {"70.3", 70.3f}, {"-5", -5.0f}, {".5", 0.5f}, {"5.", 5.0f},
        {"1e3x", 1000.0f}, {"5e", 5.0f}, {"5e+", 5.0f}, {"abc", 0.0f}, {".", 0.0f},
        {"-", 0.0f}, {"0x10", 0.0f}, {"inf", 0.0f}, {"1e-999", 0.0f}};
    for (const auto& [text, value] : floats) EXPECT_EQ(floatValue(text), value) << text;
}

// Across the autumn clock change a local day is 25 hours long.
TEST(Dates, WholeDaysFollowTheLocalCalendar) {
    ScopedTimeZone berlin("Europe/Berlin");
    const Instant beforeChange = utc("2026-10-24 10:00:00");
    EXPECT_EQ(wholeDaysBetween(beforeChange, beforeChange + 24h), 0);
    EXPECT_EQ(wholeDaysBetween(beforeChange, beforeChange + 25h), 1);
}

// A start of exactly now leaves the indexes as they were (later or unreadable ones: the fuzzer).
// Read on a device whose calendar is not Gregorian: the set-up's start is read back as written.
TEST(DayIndexTest, CountsWholeDaysSinceAPastStartOnlyAndTakesTheBudgetsLeadingInteger) {
    const icu::Locale device = icu::Locale::getDefault();
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale::setDefault(icu::Locale("th_TH"), status);
    const struct {
        std::string start;
        int index;
        std::string logged;
    } cases[] = {
        {standardDescription(kNow - 24h * 40 - 3h), 40, "40 40"},
        {standardDescription(kNow - 23h), 0, "0 0"},
        {standardDescription(kNow), 7, "dates are the same"},
    };
    for (const auto& c : cases) {
        AppState state;
        state.todayIndex = state.dayIndex = 7;
        state.profileRows = {{"1850.5", c.start}};
        LogCapture log;
        computeDayIndex(state, kNow);
        EXPECT_EQ(std::tuple(state.todayIndex, state.dayIndex, state.calorieBudgetValue),
                  std::tuple(c.index, c.index, 1850)) << c.start;
        EXPECT_TRUE(log.contains(c.logged) && log.contains("counterValue 1850")) << c.start;
        EXPECT_EQ(log.contains("start is earlier than current"), c.index != 7) << c.start;
    }
    icu::Locale::setDefault(device, status);
}

// Ending is exit status 1 with the cause and the file named: no abort, no core dump.
TEST(DayIndexDeathTest, WithoutAPlanOrADayRecordTheProgramEndsWithAMessage) {
    AppState state;
    state.databasePath = "/data/food.db";
    EXPECT_EXIT(computeDayIndex(state, kNow), testing::ExitedWithCode(1),
                "calorie-counter: the plan in /data/food.db has no profile record");
    for (const auto& [days, plan] : {std::pair(8, "an 8-day"), std::pair(11, "an 11-day"),
                                     std::pair(18, "an 18-day"), std::pair(7, "a 7-day")}) {
        state.dailyRows.resize(days);
        EXPECT_EXIT(dayRecord(state, days), testing::ExitedWithCode(1),
                    "has no day record for day " + std::to_string(days + 1) + " of " + plan);
    }
}

}  // namespace
