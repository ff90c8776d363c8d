#include "store/ProgramEnd.h"

#include <cstdio>
#include <cstdlib>

namespace {
std::function<void(const std::string&)>& presenter() {
    static std::function<void(const std::string&)> shown;
    return shown;
}
}  // namespace

void setProgramEndPresenter(std::function<void(const std::string&)> shown) {
    presenter() = std::move(shown);
}

void endProgram(const std::string& message) {
    std::fprintf(stderr, "calorie-counter: %s\n", message.c_str());
    std::fflush(stderr);
    if (const auto& show = presenter()) show(message);
    std::fflush(nullptr);
    // _Exit, not exit: destructors of a Qt application stopped halfway are no part of ending,
    // and the leak checker of a sanitizer build would report every live object as lost.
    std::_Exit(1);
}
