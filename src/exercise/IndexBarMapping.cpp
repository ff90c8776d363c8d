#include "exercise/IndexBarMapping.h"

#include <algorithm>
#include <cmath>

namespace indexbar {

double letterHeight(double barHeight) {
    return barHeight / static_cast<double>(kLetters.size());
}

int fontSize(double letterHeight) {
    return letterHeight < 14 ? 11 : 12;
}

int letterAt(double y, double letterHeight) {
    constexpr int kLast = static_cast<int>(kLetters.size()) - 1;
    // A bar not yet laid out (zero or NaN height) has every touch past its end; a negative
    // height is no bar at all.
    if (letterHeight < 0) return 0;
    if (!(letterHeight > 0)) return kLast;
    // The rounding to float is the bar's own: 29.999999999 / 10 lands on letter 3, not 2.
    const float cell = std::floor(static_cast<float>(std::fabs(y) / letterHeight));
    // Written so that NaN (an infinite y) counts as past the end too.
    if (!(cell < static_cast<float>(kLetters.size()))) return kLast;
    return static_cast<int>(cell);
}

int64_t sectionForLetter(int letter, const std::vector<std::string>& indexes) {
    for (int n = std::clamp(letter, 0, static_cast<int>(kLetters.size()) - 1); n >= 0; --n) {
        const auto found = std::find(indexes.begin(), indexes.end(), kLetters[n]);
        if (found != indexes.end()) return found - indexes.begin();
    }
    return kNotFound;
}

}  // namespace indexbar
