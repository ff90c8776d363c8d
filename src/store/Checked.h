#pragma once
// Position look-ups that the program does without a guard. A position past the end is a fault
// the program cannot go on from: end it with a message that says what was looked up.

#include <cstdint>
#include <cstdio>
#include <cstdlib>

template <class List>
auto& checkedAt(List& list, int64_t position, const char* listName) {
    if (position < 0 || static_cast<uint64_t>(position) >= list.size()) {
        std::fprintf(stderr, "calorie-counter: %s has no position %lld (it holds %zu)\n", listName,
                     static_cast<long long>(position), list.size());
        std::abort();
    }
    return list[static_cast<size_t>(position)];
}
