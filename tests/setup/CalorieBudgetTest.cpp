#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

#include "setup/CalorieBudget.h"
#include "support/Fixtures.h"

TEST(CalorieBudget, FormulasPerUnitAndGenderTheirRoundingAndTheirLimits) {
    const float inf = std::numeric_limits<float>::infinity();
    const struct {
        const char* unit;
        float weight;
        int32_t gender, cm, feet, inches;
        int64_t age;
        int32_t expected;
    } table[] = {
        {"Metric", 70.0f, 0, 175, 0, 0, 30, 1703},
        {"Metric", 60.0f, 1, 165, 0, 0, 30, 1387},
        {"Imperial", 160.0f, 0, 0, 5, 10, 30, 1750},  // 1750.6
        {"Imperial", 130.0f, 1, 0, 5, 5, 30, 1313},
        {"Metric", 0.0f, 0, 0, 0, 0, 30, -138},
        {"Metric", 70.3f, 0, 175, 0, 0, 30, 1707},
        {"Metric", 60.0f, 2, 165, 0, 0, 30, 1387},  // any non-zero gender is female
        // Only the exact "Metric" is metric: any other unit reads the feet and inches.
        {"", 160.0f, 0, 175, 5, 10, 30, 1750},
        {"", 130.0f, 1, 165, 5, 5, 30, 1313},
        {"metric", 70.0f, 0, 175, 0, 0, 30, 300},
        {"Metric", 0.0f, 0, 0, 0, 0, 11, -8},           // toward zero: -8.8 gives -8, not -9
        {"Metric", 70.0f, 0, 175, 0, 0, -1, 1913},      // a birth date ahead adds calories
        // Each lands within a rounding error of a whole number, so truncation exposes the
        // slightest change in precision or grouping: doubles, summed left to right.
        {"Metric", 41.0f, 1, 151, 0, 0, 22, 1216},      // height and age summed first: 1217
        {"Imperial", 100.0f, 1, 0, 6, 8, 19, 1326},     // inches, then feet, to the total: 1325
        {"Imperial", 105.0f, 0, 0, 7, 3, 18, 1702},     // 1702.9999999999998; floats give 1703
        {"Metric", 44.0f, 0, 150, 0, 0, 59, 1022},      // whole in doubles, not in floats
        // The centimetre and foot products wrap as 32-bit integers; out of range saturates and
        // not a number is 0.
        {"Metric", 70.0f, 0, 500'000'000, 0, 0, 30, -1'794'966'468},
        {"Imperial", 160.0f, 0, 0, 20'000'000, 10, 30, -1'254'966'305},
        {"Metric", 1e30f, 0, 175, 0, 0, 30, std::numeric_limits<int32_t>::max()},
        {"Imperial", -inf, 0, 0, 5, 10, 30, std::numeric_limits<int32_t>::min()},
        {"Metric", std::numeric_limits<float>::quiet_NaN(), 0, 175, 0, 0, 30, 0},
    };
    for (const auto& a : table) {
        AppState s;
        std::tie(s.measureUnit, s.goalWeightValue, s.genderValue) =
            std::tuple(a.unit, a.weight, a.gender);
        std::tie(s.heightCm, s.heightFeet, s.heightInches) = std::tuple(a.cm, a.feet, a.inches);
        EXPECT_EQ(calorieBudget(s, a.age), a.expected)
            << "'" << a.unit << "' " << a.weight << " kg/lb, gender " << a.gender << ", " << a.cm
            << " cm, " << a.feet << "'" << a.inches << ", age " << a.age;
    }
}

TEST(CalorieBudget, AgeComparesLocalCalendarYearsOnly) {
    const Instant today = utc("2026-11-15 09:30:00");
    EXPECT_EQ(ageInYears(today, utc("2016-11-15 09:30:00")), 10);
    EXPECT_EQ(ageInYears(today, utc("2016-11-16 00:00:00")), 10);  // birthday still to come
    EXPECT_EQ(ageInYears(today, utc("2029-03-01 12:00:00")), -3);
    // Chosen on New Year's Day, yesterday's birthday is a year ago.
    EXPECT_EQ(ageInYears(utc("2027-01-01 00:00:00"), utc("2026-12-31 23:59:59")), 1);
    EXPECT_EQ(ageInYears(utc("2026-12-31 20:00:00"), utc("2026-12-31 10:00:00")), 0);
    ScopedTimeZone tokyo("Asia/Tokyo");  // today is already 1 January 2027 there
    EXPECT_EQ(ageInYears(utc("2026-12-31 20:00:00"), utc("2026-12-31 10:00:00")), 1);
}

TEST(CalorieBudget, TrimsOnlyBlanksAndTabs) {
    EXPECT_EQ(trimBlanksAndTabs(" \t 70.5\t "), "70.5");
    EXPECT_EQ(trimBlanksAndTabs("70 kg"), "70 kg");
    EXPECT_EQ(trimBlanksAndTabs("\n70\n"), "\n70\n");
    EXPECT_TRUE(trimBlanksAndTabs(" \t\t ").empty());
}
