#include "store/Formatted.h"

#include <cstdio>

std::string vformatted(const char* format, va_list args) {
    va_list copy;
    va_copy(copy, args);
    const int length = std::vsnprintf(nullptr, 0, format, copy);
    va_end(copy);
    if (length <= 0) return {};
    std::string out(static_cast<size_t>(length), '\0');
    std::vsnprintf(out.data(), out.size() + 1, format, args);
    return out;
}

std::string formatted(const char* format, ...) {
    va_list args;
    va_start(args, format);
    std::string out = vformatted(format, args);
    va_end(args);
    return out;
}
