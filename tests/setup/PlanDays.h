#pragma once
// What the plan's day rows should say, worked out without ICU: English day labels
// ("EEEE MMMM d") of calendar days, and a check of every row of dailyData against them.

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include "support/Fixtures.h"

inline std::string englishDayLabel(std::chrono::sys_days day) {
    static const char* const weekdays[] = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                           "Thursday", "Friday", "Saturday"};
    static const char* const months[] = {"January",   "February", "March",    "April",
                                         "May",       "June",     "July",     "August",
                                         "September", "October",  "November", "December"};
    const std::chrono::year_month_day date(day);
    return std::string(weekdays[std::chrono::weekday(day).c_encoding()]) + " " +
           months[unsigned(date.month()) - 1] + " " + std::to_string(unsigned(date.day()));
}

// dailyData holds one plan of 366 rows, ids 0 to 365 in order, row i labelled labelOf(i).
inline void expectPlanDays(const std::string& database,
                           const std::function<std::string(int)>& labelOf) {
    // The shipped file's placeholder row has id -1.
    const auto ids = queryColumn(database, "SELECT id FROM dailyData WHERE id >= 0 ORDER BY rowid");
    const auto labels =
        queryColumn(database, "SELECT date FROM dailyData WHERE id >= 0 ORDER BY rowid");
    ASSERT_EQ(ids.size(), 366u);
    for (int i = 0; i < 366; ++i) {
        EXPECT_EQ(ids[i], std::to_string(i));
        EXPECT_EQ(labels[i], labelOf(i)) << "day " << i;
    }
}
