// Calories of a duration: minutes at the per-hour value's sixtieth without its remainder, and
// where the arithmetic runs out of room, wrapping as the machine does, never trapping.
#include <gtest/gtest.h>

#include <limits>

#include "exercise/Duration.h"

TEST(Duration, DropsTheSixtiethsRemainderAndWrapsInsteadOfOverflowing) {
    constexpr int64_t kMax = std::numeric_limits<int64_t>::max();
    EXPECT_EQ(duration::hoursCalories(23, kMax), kMax - 22);
    EXPECT_EQ(duration::total(kMax, 1), std::numeric_limits<int64_t>::min());
    EXPECT_EQ(duration::minutesCalories(59, -120), -118);  // a negative text divides toward zero
    EXPECT_EQ(duration::minutesCalories(45, 59), 0);       // under 60 an hour they count 0

    int32_t burned = std::numeric_limits<int32_t>::max();
    int32_t consumed = std::numeric_limits<int32_t>::min();
    duration::book(1, burned, consumed);
    EXPECT_EQ(burned, std::numeric_limits<int32_t>::min());
    EXPECT_EQ(consumed, std::numeric_limits<int32_t>::max());
}
