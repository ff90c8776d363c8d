#pragma once
// printf into a std::string, for the program's "%i"-style texts and log lines.

#include <cstdarg>
#include <string>

std::string formatted(const char* format, ...) __attribute__((format(printf, 1, 2)));
std::string vformatted(const char* format, va_list args);
