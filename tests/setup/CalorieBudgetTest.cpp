#include <gtest/gtest.h>

#include <limits>

#include "setup/CalorieBudget.h"
#include "support/Fixtures.h"

TEST(CalorieBudget, FormulasPerUnitAndGenderTheirRoundingAndTheirLimits) {
    // unit, weight, gender, cm, feet, inches, age: budget. Only the exact "Metric" is metric: any
    // other unit reads the feet and inches.
    const std::tuple<const char*, float, int32_t, int32_t, int32_t, int32_t, int64_t, int32_t>
        cases[] = {
            {"Metric", 70.0f, 0, 175, 0, 0, 30, 1703},
            {"Metric", 60.0f, 1, 165, 0, 0, 30, 1387},
            {"Imperial", 160.0f, 0, 175, 5, 10, 30, 1750},  // 1750.6
            {"", 130.0f, 1, 165, 5, 5, 30, 1313},
            {"metric", 70.0f, 0, 175, 0, 0, 30, 300},
            {"Metric", 70.3f, 0, 175, 0, 0, 30, 1707},
            {"Metric", 0.0f, 0, 0, 0, 0, 11, -8},       // toward zero: -8.8 gives -8, not -9
            {"Metric", 70.0f, 0, 175, 0, 0, -1, 1913},  // a birth date ahead adds calories
            // Each lands within a rounding error of a whole number, so truncation exposes the
            // slightest change in precision or grouping: doubles, summed left to right.
            {"Metric", 41.0f, 1, 151, 0, 0, 22, 1216},   // height and age summed first: 1217
            {"Imperial", 100.0f, 1, 0, 6, 8, 19, 1326},  // inches, then feet, to the total: 1325
            {"Imperial", 105.0f, 0, 0, 7, 3, 18, 1702},  // 1702.9999999999998; floats give 1703
            {"Metric", 44.0f, 0, 150, 0, 0, 59, 1022},   // whole in doubles, not in floats
            // The height products wrap as 32-bit integers; out of range saturates and not a
            // number is 0.
            {"Metric", 70.0f, 0, 500'000'000, 0, 0, 30, -1'794'966'468},
            {"Metric", 1e30f, 0, 175, 0, 0, 30, INT32_MAX},
            {"Imperial", -std::numeric_limits<float>::infinity(), 0, 0, 5, 10, 30, INT32_MIN},
            {"Metric", std::numeric_limits<float>::quiet_NaN(), 0, 175, 0, 0, 30, 0}};
    for (const auto& [unit, weight, gender, cm, feet, inches, age, budget] : cases) {
        AppState s;
        std::tie(s.measureUnit, s.goalWeightValue, s.genderValue) =
            std::tuple(unit, weight, gender);
        std::tie(s.heightCm, s.heightFeet, s.heightInches) = std::tuple(cm, feet, inches);
        EXPECT_EQ(calorieBudget(s, age), budget);  // the expected budget names the row
    }
}

// Only the calendar years count: a birthday still to come, or yesterday's on New Year's Day.
TEST(CalorieBudget, AgeComparesCalendarYearsOnly) {
    EXPECT_EQ(ageInYears(utc("2026-11-15 09:30:00"), utc("2016-11-16 00:00:00")), 10);
    EXPECT_EQ(ageInYears(utc("2027-01-01 00:00:00"), utc("2026-12-31 23:59:59")), 1);
}

TEST(CalorieBudget, TrimsOnlyBlanksAndTabs) {
    EXPECT_EQ(trimBlanksAndTabs(" \t 70.5\t "), "70.5");
    EXPECT_TRUE(trimBlanksAndTabs(" \t\t ").empty());
}
