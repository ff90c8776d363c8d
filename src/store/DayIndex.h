#pragma once
// Which day of the plan today is: from the profile row read into AppState, sets
// calorieBudgetValue, and todayIndex and dayIndex when the plan started before now.

#include "store/AppState.h"
#include "store/Dates.h"

// Ends the program with a message when profileRows is empty: nothing can be shown without a plan.
void computeDayIndex(AppState& state, Instant now);

// The record of day `day` in dailyRows. Ends the program with a message naming the plan's file
// when there is none: more days have passed than the plan has records, or they could not be read.
const DayRow& dayRecord(const AppState& state, int64_t day);
