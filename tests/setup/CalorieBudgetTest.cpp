#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

#include "setup/CalorieBudget.h"
#include "support/Fixtures.h"

namespace {

struct Answers {
    const char* unit;
    float weight;
    int32_t gender;
    int32_t cm;
    int32_t feet;
    int32_t inches;
    int64_t age;
    int32_t expected;
};

int32_t budgetFor(const Answers& a) {
    AppState s;
    s.measureUnit = a.unit;
    s.goalWeightValue = a.weight;
    s.genderValue = a.gender;
    s.heightCm = a.cm;
    s.heightFeet = a.feet;
    s.heightInches = a.inches;
    return calorieBudget(s, a.age);
}

void expectBudgets(std::initializer_list<Answers> table) {
    for (const Answers& a : table) {
        EXPECT_EQ(budgetFor(a), a.expected)
            << "unit '" << a.unit << "' weight " << a.weight << " gender " << a.gender << " cm "
            << a.cm << " height " << a.feet << "'" << a.inches << " age " << a.age;
    }
}

constexpr int32_t kMax = std::numeric_limits<int32_t>::max();
constexpr int32_t kMin = std::numeric_limits<int32_t>::min();

}  // namespace

TEST(CalorieBudget, FormulasPerUnitAndGender) {
    expectBudgets({
        {"Metric", 70.0f, 0, 175, 0, 0, 30, 1703},
        {"Metric", 60.0f, 1, 165, 0, 0, 30, 1387},
        {"Imperial", 160.0f, 0, 0, 5, 10, 30, 1750},  // 1750.6
        {"Imperial", 130.0f, 1, 0, 5, 5, 30, 1313},
        {"Metric", 0.0f, 0, 0, 0, 0, 30, -138},
        {"Metric", 70.3f, 0, 175, 0, 0, 30, 1707},
        // Any non-zero gender is female.
        {"Metric", 60.0f, 2, 165, 0, 0, 30, 1387},
        // Only the exact "Metric" is metric: an empty or differently spelt unit reads the feet
        // and inches, not the centimetres.
        {"", 160.0f, 0, 175, 5, 10, 30, 1750},
        {"", 130.0f, 1, 165, 5, 5, 30, 1313},
        {"metric", 70.0f, 0, 175, 0, 0, 30, 300},
        // Truncation is toward zero: -8.8 gives -8, not -9.
        {"Metric", 0.0f, 0, 0, 0, 0, 11, -8},
        // A birth date in the future adds calories.
        {"Metric", 70.0f, 0, 175, 0, 0, -1, 1913},
    });
}

TEST(CalorieBudget, RoundsInDoublesLeftToRight) {
    // Each of these lands within a rounding error of a whole number, so truncation exposes the
    // slightest change in precision or grouping.
    expectBudgets({
        // Left to right gives 1216.9999999999998; summing the height and age terms first gives 1217.
        {"Metric", 41.0f, 1, 151, 0, 0, 22, 1216},
        // The height pair is summed on its own; adding inches then feet to the total gives 1325.
        {"Imperial", 100.0f, 1, 0, 6, 8, 19, 1326},
        // Exactly 1702.9999999999998; single precision rounds to 1703.
        {"Imperial", 105.0f, 0, 0, 7, 3, 18, 1702},
        // Exactly whole in doubles, just below the whole number in single precision.
        {"Metric", 44.0f, 0, 150, 0, 0, 59, 1022},
    });
}

TEST(CalorieBudget, AbsurdAnswersStayDefined) {
    const float inf = std::numeric_limits<float>::infinity();
    expectBudgets({
        // The centimetre and foot products wrap as 32-bit integers: 2 500 000 000 and
        // 3 040 000 000 come out negative.
        {"Metric", 70.0f, 0, 500'000'000, 0, 0, 30, -1'794'966'468},
        {"Imperial", 160.0f, 0, 0, 20'000'000, 10, 30, -1'254'966'305},
        // Out of range saturates; not a number is 0.
        {"Metric", 1e30f, 0, 175, 0, 0, 30, kMax},
        {"Imperial", -inf, 0, 0, 5, 10, 30, kMin},
        {"Metric", std::numeric_limits<float>::quiet_NaN(), 0, 175, 0, 0, 30, 0},
    });
}

TEST(CalorieBudget, AgeComparesCalendarYearsOnly) {
    const Instant today = utc("2026-11-15 09:30:00");
    EXPECT_EQ(ageInYears(today, utc("2016-11-15 09:30:00")), 10);
    EXPECT_EQ(ageInYears(today, utc("2016-11-16 00:00:00")), 10);  // birthday still to come
    EXPECT_EQ(ageInYears(today, utc("2029-03-01 12:00:00")), -3);
    // Chosen on New Year's Day, yesterday's birthday is a year ago.
    EXPECT_EQ(ageInYears(utc("2027-01-01 00:00:00"), utc("2026-12-31 23:59:59")), 1);
    EXPECT_EQ(ageInYears(utc("2026-12-31 23:59:59"), utc("2026-01-01 00:00:00")), 0);
}

TEST(CalorieBudget, AgeUsesTheLocalYear) {
    const Instant today = utc("2026-12-31 20:00:00");
    const Instant birth = utc("2026-12-31 10:00:00");
    EXPECT_EQ(ageInYears(today, birth), 0);
    ScopedTimeZone tokyo("Asia/Tokyo");  // today is already 1 January 2027 there
    EXPECT_EQ(ageInYears(today, birth), 1);
}

TEST(CalorieBudget, TrimsOnlyBlanksAndTabs) {
    EXPECT_EQ(trimBlanksAndTabs(" \t 70.5\t "), "70.5");
    EXPECT_EQ(trimBlanksAndTabs("70 kg"), "70 kg");
    EXPECT_EQ(trimBlanksAndTabs("\n70\n"), "\n70\n");
    EXPECT_TRUE(trimBlanksAndTabs(" \t\t ").empty());
}
