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

// Whose conventions a formatter follows. Texts shown to the person use the device's; texts the
// program writes for itself to read back (the start date) use POSIX's, so that they mean the
// same moment whatever locale the device is set to: Gregorian calendar, Latin digits.
enum class DateLocale { device, posix };

// A date pattern ("EEEE MMMM d", "MMMM d,YYYY", ...) bound to a locale and the default time zone
// at the time of construction. Build one per pattern and reuse it: construction is the costly part.
class DateFormatter {
public:
    explicit DateFormatter(std::string_view pattern, DateLocale locale = DateLocale::device);
    ~DateFormatter();
    DateFormatter(DateFormatter&&) noexcept;
    DateFormatter& operator=(DateFormatter&&) noexcept;

    std::string format(Instant instant) const;
    // Empty unless the whole text is a date that an Instant can hold (about 1678 to 2261).
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
