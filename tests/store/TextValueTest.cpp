#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>

#include "store/TextValue.h"

TEST(TextValue, IntegerReadsLeadingDigitsOnly) {
    EXPECT_EQ(intValue("1850"), 1850);
    EXPECT_EQ(intValue("1850.5"), 1850);
    EXPECT_EQ(intValue("175 cm"), 175);
    EXPECT_EQ(intValue("  \t-42x"), -42);
    EXPECT_EQ(intValue("+7"), 7);
    EXPECT_EQ(intValue(""), 0);
    EXPECT_EQ(intValue("abc"), 0);
    EXPECT_EQ(intValue("- 5"), 0);
    EXPECT_EQ(intValue("Today, 12"), 0);
}

TEST(TextValue, IntegerSaturatesInsteadOfOverflowing) {
    EXPECT_EQ(intValue("2147483647"), INT32_MAX);
    EXPECT_EQ(intValue("2147483648"), INT32_MAX);
    EXPECT_EQ(intValue("-2147483648"), INT32_MIN);
    EXPECT_EQ(intValue("-99999999999999999999"), INT32_MIN);
    EXPECT_EQ(integerValue("9223372036854775807"), INT64_MAX);
    EXPECT_EQ(integerValue("-9223372036854775808"), INT64_MIN);
    EXPECT_EQ(integerValue("99999999999999999999"), INT64_MAX);
    EXPECT_EQ(integerValue("4294967296"), 4294967296);
}

TEST(TextValue, FloatReadsTheLongestLeadingNumber) {
    EXPECT_EQ(floatValue("  72.5kg"), 72.5f);
    EXPECT_EQ(floatValue("70.3"), 70.3f);  // the float nearest 70.3, not the double
    EXPECT_EQ(floatValue("-5"), -5.0f);
    EXPECT_EQ(floatValue(".5"), 0.5f);
    EXPECT_EQ(floatValue("5."), 5.0f);
    EXPECT_EQ(floatValue("1e3x"), 1000.0f);
    EXPECT_EQ(floatValue("5e"), 5.0f);
    EXPECT_EQ(floatValue("5e+"), 5.0f);
    EXPECT_EQ(floatValue("abc"), 0.0f);
    EXPECT_EQ(floatValue("."), 0.0f);
    EXPECT_EQ(floatValue("-"), 0.0f);
    EXPECT_EQ(floatValue("0x10"), 0.0f);  // hexadecimal is not a decimal number
    EXPECT_EQ(floatValue("inf"), 0.0f);
    EXPECT_TRUE(std::isinf(floatValue("1e999")));
    EXPECT_EQ(floatValue("1e-999"), 0.0f);
}
