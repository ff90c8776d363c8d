#pragma once
// The set-up wizard's arithmetic: age from a birthday, the daily calorie budget from the wizard's
// answers, and the blank test of the weight fields.

#include <cstdint>
#include <string_view>

#include "store/AppState.h"
#include "store/Dates.h"

// Calendar year of today minus calendar year of birth, in the default time zone. Month and day
// are deliberately ignored, so a birthday still to come this year already counts; a birth date
// in the future gives a negative age.
int64_t ageInYears(Instant today, Instant birth);

// The daily budget for the wizard's answers in s (unit, goal weight, gender, height) at the given
// age, truncated toward zero. Any unit other than "Metric", empty included, is Imperial.
// Absurd inputs saturate at the int32 limits instead of overflowing; a NaN weight gives 0.
int32_t calorieBudget(const AppState& s, int64_t age);

// text without leading and trailing blanks and tabs; other white space (newlines) is kept.
std::string_view trimBlanksAndTabs(std::string_view text);
