#include "setup/CalorieBudget.h"

#include <cmath>
#include <limits>

// Budgets are truncated, so one bit of rounding can move a result by a whole calorie: every
// product must round before it is added. Keep the compiler from fusing them into FMAs.
#if defined(__clang__)
#pragma STDC FP_CONTRACT OFF
#elif defined(__GNUC__)
#pragma GCC optimize("fp-contract=off")
#endif

namespace {

// The height products are 32-bit integer arithmetic; absurd heights wrap like a 32-bit multiply
// instead of being undefined. The 64-bit product is exact and narrowing is modular since C++20.
int32_t wrappingProduct(int32_t a, int32_t b) {
    return static_cast<int32_t>(static_cast<int64_t>(a) * static_cast<int64_t>(b));
}

// Truncation toward zero. Casting a double outside the int32 range is undefined, so such values
// saturate at the nearest limit and NaN becomes 0.
int32_t truncated(double value) {
    if (std::isnan(value)) return 0;
    if (value >= 2147483648.0) return std::numeric_limits<int32_t>::max();
    if (value <= -2147483649.0) return std::numeric_limits<int32_t>::min();
    return static_cast<int32_t>(value);
}

}  // namespace

int64_t ageInYears(Instant today, Instant birth) {
    return static_cast<int64_t>(calendarDay(today).year) - calendarDay(birth).year;
}

int32_t calorieBudget(const AppState& s, int64_t age) {
    // The coefficients are deliberate, the two different values per foot included: saved budgets
    // were computed with them. Sums run left to right as grouped here; regrouping changes results.
    const double weight = static_cast<double>(s.goalWeightValue);
    const double years = static_cast<double>(age);
    const bool female = s.genderValue != 0;
    double budget;
    if (s.measureUnit == "Metric") {
        if (female) {
            budget = ((weight * 9.6 + 655.0) + static_cast<double>(s.heightCm) * 1.8) +
                     years * -4.7;
        } else {
            budget = (weight * 13.8 + 66.0) + static_cast<double>(wrappingProduct(s.heightCm, 5)) +
                     years * -6.8;
        }
    } else if (female) {
        budget = (weight * 4.35 + 655.0) +
                 (static_cast<double>(s.heightInches) * 4.7 +
                  static_cast<double>(s.heightFeet) * 54.6) +
                 years * -6.8;
    } else {
        budget = (weight * 6.26 + 66.0) +
                 (static_cast<double>(s.heightInches) * 12.7 +
                  static_cast<double>(wrappingProduct(s.heightFeet, 152))) +
                 years * -6.8;
    }
    return truncated(budget);
}

std::string_view trimBlanksAndTabs(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    const auto last = text.find_last_not_of(" \t");
    return text.substr(first, last - first + 1);
}
