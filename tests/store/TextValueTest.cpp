#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>

#include "store/TextValue.h"

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
    EXPECT_TRUE(std::isinf(floatValue("1e999")));
}
