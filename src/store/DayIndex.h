#pragma once
// Which day of the plan today is: from the profile row read into AppState, sets
// calorieBudgetValue, and todayIndex and dayIndex when the plan started before now.

#include "store/Dates.h"

struct AppState;

// Ends the program with a message when profileRows is empty: nothing can be shown without a plan.
void computeDayIndex(AppState& state, Instant now);
