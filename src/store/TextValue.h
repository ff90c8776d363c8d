#pragma once
// Numbers read from texts the way the program has always read them: leading blanks skipped,
// an optional sign, then as many digits as follow; no digits gives 0. Nothing here fails.

#include <cstdint>
#include <string_view>

// 32-bit integer value; saturates at the type's limits.
int32_t intValue(std::string_view text);
// 64-bit integer value; saturates at the type's limits.
int64_t integerValue(std::string_view text);
// Single-precision value of the longest leading decimal number (sign, digits, point, exponent),
// independent of the process locale's decimal separator.
float floatValue(std::string_view text);
