#pragma once
// When the code disagrees with its oracle: say so, and crash so that libFuzzer keeps the input.

#include <cstdio>
#include <cstdlib>
#include <string>

inline void expect(bool ok, const char* what, const std::string& detail = {}) {
    if (ok) return;
    std::fprintf(stderr, "fuzz: %s %s\n", what, detail.c_str());
    std::abort();
}
