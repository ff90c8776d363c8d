// Calories of a duration and their booking, where the arithmetic runs out of room included.
#include <gtest/gtest.h>

#include <limits>

#include "exercise/Duration.h"

using namespace duration;

TEST(Duration, HoursCountInFullMinutesAtTheTruncatedSixtieth) {
    EXPECT_EQ(total(hoursCalories(23, 1308), minutesCalories(59, 1308)), 31323);
    EXPECT_EQ(minutesCalories(30, 352), 150);  // 30 x 5, not 176
    EXPECT_EQ(minutesCalories(59, 59), 0);     // under 60 per hour, minutes are worth nothing
    EXPECT_EQ(total(hoursCalories(0, 844), minutesCalories(0, 844)), 0);
    EXPECT_EQ(minutesCalories(59, -120), -118);  // a negative text divides toward zero

    // Far beyond any activity: the machine word wraps, as it always has, and nothing traps.
    constexpr int64_t kMax = std::numeric_limits<int64_t>::max();
    EXPECT_EQ(hoursCalories(23, kMax), kMax - 22);
    EXPECT_EQ(total(kMax, 1), std::numeric_limits<int64_t>::min());
}

TEST(Duration, BookingRaisesBurnedAndLowersConsumedIn32Bits) {
    int32_t burned = 100, consumed = 1240;
    book(502, burned, consumed);
    EXPECT_EQ(burned, 602);
    EXPECT_EQ(consumed, 738);
    burned = std::numeric_limits<int32_t>::max();
    consumed = std::numeric_limits<int32_t>::min();
    book(1, burned, consumed);
    EXPECT_EQ(burned, std::numeric_limits<int32_t>::min());
    EXPECT_EQ(consumed, std::numeric_limits<int32_t>::max());
}
