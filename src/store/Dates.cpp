#include "store/Dates.h"

#include <unicode/gregocal.h>
#include <unicode/smpdtfmt.h>
#include <unicode/timezone.h>

#include <limits>

namespace {

std::function<Instant()>& clockOverride() {
    static std::function<Instant()> clock;
    return clock;
}

UDate toUDate(Instant instant) {
    return std::chrono::duration<double, std::milli>(instant.time_since_epoch()).count();
}

// Empty when the instant lies outside what Instant can count (or is not a number): converting
// such a double to Instant's integer ticks would be undefined.
std::optional<Instant> fromUDate(UDate date) {
    using Ticks = std::chrono::duration<double, Instant::period>;
    const double ticks = Ticks(std::chrono::duration<double, std::milli>(date)).count();
    // Both limits are powers of two, so these doubles are exact: -2^63 and 2^63.
    constexpr double lowest = static_cast<double>(std::numeric_limits<Instant::rep>::min());
    constexpr double beyond = -lowest;
    if (!(ticks >= lowest && ticks < beyond)) return std::nullopt;
    return Instant(Instant::duration(static_cast<Instant::rep>(ticks)));
}

std::string toUtf8(const icu::UnicodeString& text) {
    std::string out;
    text.toUTF8String(out);
    return out;
}

}  // namespace

Instant Clock::now() {
    const auto& clock = clockOverride();
    return clock ? clock() : std::chrono::system_clock::now();
}

void Clock::set(std::function<Instant()> clock) { clockOverride() = std::move(clock); }

struct DateFormatter::Impl {
    std::unique_ptr<icu::SimpleDateFormat> format;
};

DateFormatter::DateFormatter(std::string_view pattern, DateLocale locale)
    : impl_(std::make_unique<Impl>()) {
    UErrorCode status = U_ZERO_ERROR;
    const auto text =
        icu::UnicodeString::fromUTF8(icu::StringPiece(pattern.data(), pattern.size()));
    impl_->format =
        locale == DateLocale::posix
            ? std::make_unique<icu::SimpleDateFormat>(text, icu::Locale("en_US_POSIX"), status)
            : std::make_unique<icu::SimpleDateFormat>(text, status);
    if (U_FAILURE(status)) impl_->format.reset();
}

DateFormatter::~DateFormatter() = default;
DateFormatter::DateFormatter(DateFormatter&&) noexcept = default;
DateFormatter& DateFormatter::operator=(DateFormatter&&) noexcept = default;

std::string DateFormatter::format(Instant instant) const {
    if (!impl_->format) return {};
    icu::UnicodeString out;
    impl_->format->format(toUDate(instant), out);
    return toUtf8(out);
}

std::optional<Instant> DateFormatter::parse(std::string_view text) const {
    if (!impl_->format) return std::nullopt;
    const auto source = icu::UnicodeString::fromUTF8(icu::StringPiece(text.data(), text.size()));
    icu::ParsePosition position(0);
    const UDate date = impl_->format->parse(source, position);
    // Only a text that parses whole is a date.
    if (position.getErrorIndex() >= 0 || position.getIndex() != source.length())
        return std::nullopt;
    return fromUDate(date);
}

std::string standardDescription(Instant instant) {
    UErrorCode status = U_ZERO_ERROR;
    icu::SimpleDateFormat format(icu::UnicodeString(u"yyyy-MM-dd HH:mm:ss xx"), icu::Locale::getRoot(),
                                 status);
    if (U_FAILURE(status)) return {};
    format.adoptTimeZone(icu::TimeZone::getGMT()->clone());
    icu::UnicodeString out;
    format.format(toUDate(instant), out);
    return toUtf8(out);
}

int64_t wholeDaysBetween(Instant start, Instant end) {
    UErrorCode status = U_ZERO_ERROR;
    icu::GregorianCalendar calendar(status);  // default time zone and locale
    if (U_FAILURE(status)) return 0;
    calendar.setTime(toUDate(start), status);
    const int32_t days = calendar.fieldDifference(toUDate(end), UCAL_DATE, status);
    return U_FAILURE(status) ? 0 : days;
}

CalendarDay calendarDay(Instant instant) {
    UErrorCode status = U_ZERO_ERROR;
    icu::GregorianCalendar calendar(status);
    if (U_FAILURE(status)) return {0, 0, 0};
    calendar.setTime(toUDate(instant), status);
    return {calendar.get(UCAL_EXTENDED_YEAR, status), calendar.get(UCAL_MONTH, status) + 1,
            calendar.get(UCAL_DATE, status)};
}
