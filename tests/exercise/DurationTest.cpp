// Calories of a duration where the arithmetic runs out of room: it wraps as the machine does and
// never traps. The ordinary sums are the duration screen's test.
#include <gtest/gtest.h>

#include <limits>

#include "exercise/Duration.h"

TEST(Duration, WrapsInsteadOfOverflowing) {
    constexpr int64_t kMax = std::numeric_limits<int64_t>::max();
    EXPECT_EQ(duration::hoursCalories(23, kMax), kMax - 22);
    EXPECT_EQ(duration::total(kMax, 1), std::numeric_limits<int64_t>::min());
    EXPECT_EQ(duration::minutesCalories(59, -120), -118);  // a negative text divides toward zero

    int32_t burned = std::numeric_limits<int32_t>::max();
    int32_t consumed = std::numeric_limits<int32_t>::min();
    duration::book(1, burned, consumed);
    EXPECT_EQ(burned, std::numeric_limits<int32_t>::min());
    EXPECT_EQ(consumed, std::numeric_limits<int32_t>::max());
}
