#pragma once
// The calories of a duration of exercise, from the activity's calories per hour. Whole hours
// count in full; minutes count at the per-hour value divided by 60 in integers first, so the
// remainder of that division is dropped: 30 minutes of 352 per hour are 30 x 5 = 150, not 176.
// Machine-word arithmetic that wraps where the platform's would, never undefined.

#include <cstdint>

namespace duration {

int64_t hoursCalories(int64_t hours, int64_t perHour);
int64_t minutesCalories(int64_t minutes, int64_t perHour);
// The shown total of both shares.
int64_t total(int64_t hoursShare, int64_t minutesShare);

// Books calories burned against the day's values in 32-bit arithmetic: burned goes up by them and
// consumed goes down by the same amount.
void book(int32_t calories, int32_t& burnedValue, int32_t& consumedValue);

}  // namespace duration
