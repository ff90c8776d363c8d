#pragma once
// Position look-ups that the program does without a guard. A position past the end is a fault
// the program cannot go on from: it ends with a message (see ProgramEnd.h).

#include <concepts>
#include <cstdint>

#include "store/Formatted.h"
#include "store/ProgramEnd.h"

// describe() gives the message; it is called only when the position is missing.
template <class List, std::invocable Describe>
auto& checkedAt(List& list, int64_t position, Describe&& describe) {
    if (position < 0 || static_cast<uint64_t>(position) >= list.size()) endProgram(describe());
    return list[static_cast<size_t>(position)];
}

// For lists that only a fault of the program itself can leave short: the message names the list.
template <class List>
auto& checkedAt(List& list, int64_t position, const char* listName) {
    return checkedAt(list, position, [&] {
        return formatted("%s has no position %lld (it holds %zu)", listName,
                         static_cast<long long>(position), list.size());
    });
}
