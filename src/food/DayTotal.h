#pragma once
// The day's consumed and burned totals are 32-bit. An entry is added to them cut to 32 bits, and
// a total past the limits wraps around, as the program's integers always have (never undefined).

#include <cstdint>

inline void addToDayTotal(int32_t& total, int64_t amount) {
    total = static_cast<int32_t>(static_cast<uint32_t>(total) + static_cast<uint32_t>(amount));
}
