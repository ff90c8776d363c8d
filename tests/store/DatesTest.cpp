// The start date's own text is read back in the day index's and the plan check's tests, the
// labels and the week-based year in the set-up's.
#include <gtest/gtest.h>

#include "store/Dates.h"
#include "support/Fixtures.h"

using namespace std::chrono_literals;

TEST(Dates, WholeDaysAndCalendarDaysFollowTheLocalCalendar) {
    const Instant start = utc("2026-11-15 09:30:00");
    EXPECT_EQ(wholeDaysBetween(start, start + 23h + 59min), 0);
    EXPECT_EQ(wholeDaysBetween(start, start + 24h), 1);
    EXPECT_EQ(wholeDaysBetween(start, start + 24h * 400), 400);
    {
        ScopedTimeZone tokyo("Asia/Tokyo");
        const CalendarDay day = calendarDay(utc("2026-12-31 20:00:00"));
        EXPECT_EQ(std::tuple(day.year, day.month, day.day), std::tuple(2027, 1, 1));
    }
    // Across the autumn clock change a local day is 25 hours long.
    ScopedTimeZone berlin("Europe/Berlin");
    const Instant beforeChange = utc("2026-10-24 10:00:00");
    EXPECT_EQ(wholeDaysBetween(beforeChange, beforeChange + 24h), 0);
    EXPECT_EQ(wholeDaysBetween(beforeChange, beforeChange + 25h), 1);
}

TEST(Dates, StartTextsBeyondWhatAnInstantCountsDoNotParse) {
    const DateFormatter start("yyyy-MM-dd HH:mm:ss zzz", DateLocale::posix);
    for (const char* text : {"2263-01-01 00:00:00 +0000", "1677-01-01 00:00:00 +0000",
                             "99999-01-01 00:00:00 +0000", "2262-04-12 00:00:00 +0000"})
        EXPECT_FALSE(start.parse(text).has_value()) << text;
    EXPECT_EQ(start.parse("2262-04-11 00:00:00 +0000"), utc("2262-04-11 00:00:00"));
    EXPECT_EQ(start.parse("1677-09-22 00:00:00 +0000"), utc("1677-09-22 00:00:00"));
}
