#include <gtest/gtest.h>

#include "store/Dates.h"
#include "support/Fixtures.h"

using namespace std::chrono_literals;

TEST(Dates, PatternsFollowTheDefaultLocaleAndZone) {
    const Instant t = utc("2026-11-15 09:30:00");
    EXPECT_EQ(DateFormatter("EEEE MMMM d").format(t), "Sunday November 15");
    EXPECT_EQ(DateFormatter("MMMM d").format(t), "November 15");
    ScopedTimeZone tokyo("Asia/Tokyo");
    EXPECT_EQ(DateFormatter("EEEE MMMM d").format(utc("2026-11-15 20:00:00")), "Monday November 16");
}

TEST(Dates, WeekBasedYearTurnsEarlyInLateDecember) {
    // 29 December 2025 belongs to the first week of 2026.
    EXPECT_EQ(DateFormatter("MMMM d,YYYY").format(utc("2025-12-29 12:00:00")), "December 29,2026");
    EXPECT_EQ(DateFormatter("MMMM d,YYYY").format(utc("1990-06-01 12:00:00")), "June 1,1990");
}

TEST(Dates, StandardDescriptionReadsBackWithTheStartPattern) {
    const Instant t = utc("2026-11-15 09:30:00") + 400ms;
    EXPECT_EQ(standardDescription(t), "2026-11-15 09:30:00 +0000");
    for (const char* zone : {"UTC", "America/New_York", "Asia/Kolkata"}) {
        ScopedTimeZone scoped(zone);
        const auto back = DateFormatter("yyyy-MM-dd HH:mm:ss zzz").parse(standardDescription(t));
        ASSERT_TRUE(back.has_value()) << zone;
        EXPECT_EQ(*back, utc("2026-11-15 09:30:00")) << zone;
    }
    EXPECT_FALSE(DateFormatter("yyyy-MM-dd HH:mm:ss zzz").parse("").has_value());
    EXPECT_FALSE(DateFormatter("yyyy-MM-dd HH:mm:ss zzz").parse("not a date").has_value());
}

TEST(Dates, WholeDaysCountDownAndFollowTheLocalCalendar) {
    const Instant start = utc("2026-11-15 09:30:00");
    EXPECT_EQ(wholeDaysBetween(start, start + 23h + 59min), 0);
    EXPECT_EQ(wholeDaysBetween(start, start + 24h), 1);
    EXPECT_EQ(wholeDaysBetween(start, start + 36h), 1);
    EXPECT_EQ(wholeDaysBetween(start, start + 24h * 400), 400);
    // Across the autumn clock change a local day is 25 hours long.
    ScopedTimeZone berlin("Europe/Berlin");
    const Instant beforeChange = utc("2026-10-24 10:00:00");
    EXPECT_EQ(wholeDaysBetween(beforeChange, beforeChange + 24h), 0);
    EXPECT_EQ(wholeDaysBetween(beforeChange, beforeChange + 25h), 1);
}

TEST(Dates, CalendarDayIsLocal) {
    ScopedTimeZone auckland("Pacific/Auckland");
    const CalendarDay day = calendarDay(utc("2026-12-31 12:00:00"));
    EXPECT_EQ(day.year, 2027);
    EXPECT_EQ(day.month, 1);
    EXPECT_EQ(day.day, 1);
}

TEST(Dates, StartTextsBeyondWhatAnInstantCountsDoNotParse) {
    const DateFormatter start("yyyy-MM-dd HH:mm:ss zzz", DateLocale::posix);
    for (const char* text : {"2263-01-01 00:00:00 +0000", "1677-01-01 00:00:00 +0000",
                             "99999-01-01 00:00:00 +0000", "2262-04-12 00:00:00 +0000"})
        EXPECT_FALSE(start.parse(text).has_value()) << text;
    EXPECT_EQ(start.parse("2262-04-11 00:00:00 +0000"), utc("2262-04-11 00:00:00"));
    EXPECT_EQ(start.parse("1677-09-22 00:00:00 +0000"), utc("1677-09-22 00:00:00"));
}
