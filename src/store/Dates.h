#pragma once
// Dates over ICU, in the default locale and time zone (the device's), with a clock that tests
// can fix.

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

using Instant = std::chrono::system_clock::time_point;

class Clock {
public:
    static Instant now();
    // Replaces the system clock; an empty function restores it.
    static void set(std::function<Instant()> clock);
};

// A date pattern ("EEEE MMMM d", "MMMM d,YYYY", ...) bound to the default locale and time zone
// at the time of construction. Build one per pattern and reuse it: construction is the costly part.
class DateFormatter {
public:
    explicit DateFormatter(std::string_view pattern);
    ~DateFormatter();
    DateFormatter(DateFormatter&&) noexcept;
    DateFormatter& operator=(DateFormatter&&) noexcept;

    std::string format(Instant instant) const;
    std::optional<Instant> parse(std::string_view text) const;

private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

// The platform's standard description of a moment, always in UTC: "2026-11-15 09:30:00 +0000".
std::string standardDescription(Instant instant);

// Whole days from start to end on the Gregorian calendar in the default time zone, counted
// towards zero (23 h 59 min are 0 days).
int64_t wholeDaysBetween(Instant start, Instant end);

// Year, month (1-12) and day of a moment on the Gregorian calendar in the default time zone.
struct CalendarDay {
    int32_t year;
    int32_t month;
    int32_t day;
};
CalendarDay calendarDay(Instant instant);
