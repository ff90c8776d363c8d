#include "store/DevLog.h"

#include <cstdarg>
#include <cstdio>

#include "store/Formatted.h"

namespace devlog {
namespace {
bool on = false;
Sink sink;
}  // namespace

bool enabled() { return on; }
void setEnabled(bool enable) { on = enable; }
void setSink(Sink s) { sink = std::move(s); }

void write(const char* format, ...) {
    va_list args;
    va_start(args, format);
    const std::string line = vformatted(format, args);
    va_end(args);
    if (sink) {
        sink(line);
    } else {
        std::fprintf(stderr, "%s\n", line.c_str());
    }
}

std::string describe(const std::string& text) { return text; }

}  // namespace devlog
