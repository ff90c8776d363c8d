#include "store/TextValue.h"

#include <locale.h>

#include <cctype>
#include <cstdlib>
#include <limits>
#include <string>

namespace {

size_t skipBlanks(std::string_view text) {
    size_t i = 0;
    while (i < text.size() && std::isspace(static_cast<unsigned char>(text[i]))) ++i;
    return i;
}

bool isDigit(char c) { return c >= '0' && c <= '9'; }

template <class Int>
Int leadingInteger(std::string_view text) {
    size_t i = skipBlanks(text);
    bool negative = false;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) negative = text[i++] == '-';
    // Accumulate towards the sign so that the minimum value is reachable without overflow.
    Int value = 0;
    for (; i < text.size() && isDigit(text[i]); ++i) {
        const Int digit = text[i] - '0';
        if (negative) {
            if (value < (std::numeric_limits<Int>::min() + digit) / 10)
                return std::numeric_limits<Int>::min();
            value = value * 10 - digit;
        } else {
            if (value > (std::numeric_limits<Int>::max() - digit) / 10)
                return std::numeric_limits<Int>::max();
            value = value * 10 + digit;
        }
    }
    return value;
}

// The leading decimal number of text, or an empty view when none leads it.
std::string_view leadingDecimal(std::string_view text) {
    const size_t start = skipBlanks(text);
    size_t i = start;
    auto digits = [&] {
        const size_t from = i;
        while (i < text.size() && isDigit(text[i])) ++i;
        return i - from;
    };
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
    size_t mantissa = digits();
    if (i < text.size() && text[i] == '.') {
        ++i;
        mantissa += digits();
    }
    if (mantissa == 0) return {};
    const size_t beforeExponent = i;
    if (i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
        ++i;
        if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
        if (digits() == 0) i = beforeExponent;  // "5e" is the number 5 followed by text
    }
    return text.substr(start, i - start);
}

}  // namespace

int32_t intValue(std::string_view text) { return leadingInteger<int32_t>(text); }
int64_t integerValue(std::string_view text) { return leadingInteger<int64_t>(text); }

float floatValue(std::string_view text) {
    const std::string number(leadingDecimal(text));
    if (number.empty()) return 0.0f;
    // The C locale's point, whatever the process locale says; out of range gives inf or 0.
    static const locale_t cLocale = newlocale(LC_ALL_MASK, "C", locale_t{});
    return strtof_l(number.c_str(), nullptr, cLocale);
}
