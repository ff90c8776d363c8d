#pragma once
// The developer log: diagnostic lines only, never shown to the user.
// Off by default; DEVLOG then evaluates neither its format nor its arguments.

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace devlog {

bool enabled();
void setEnabled(bool on);

// Where lines go when enabled: stderr unless a sink is set (tests capture lines this way).
using Sink = std::function<void(std::string_view line)>;
void setSink(Sink sink);

void write(const char* format, ...) __attribute__((format(printf, 1, 2)));

// Text of a list for "%@": (a, b, c); rows nest as ((a, b), (c, d)).
std::string describe(const std::string& text);
template <class List>
std::string describe(const List& list) {
    std::string out = "(";
    for (const auto& item : list) {
        if (out.size() > 1) out += ", ";
        out += describe(item);
    }
    return out + ")";
}

}  // namespace devlog

#define DEVLOG(...)                                           \
    do {                                                      \
        if (::devlog::enabled()) ::devlog::write(__VA_ARGS__); \
    } while (0)
