#include "ui/DatePicker.h"

#include <unicode/dtfmtsym.h>
#include <unicode/gregocal.h>

#include <algorithm>

namespace {

// The Gregorian calendar in the default time zone and locale, standing on one moment.
class Calendar {
public:
    explicit Calendar(Instant instant) : calendar_(status_) {
        calendar_.setTime(
            std::chrono::duration<double, std::milli>(instant.time_since_epoch()).count(), status_);
    }

    Instant instant() {
        const std::chrono::duration<double, std::milli> since(calendar_.getTime(status_));
        return Instant(std::chrono::duration_cast<Instant::duration>(since));
    }
    int year() { return calendar_.get(UCAL_YEAR, status_); }
    int month() { return calendar_.get(UCAL_MONTH, status_) + 1; }
    int day() { return calendar_.get(UCAL_DATE, status_); }
    int daysInMonth() { return calendar_.getActualMaximum(UCAL_DATE, status_); }

    void addYears(int years) { calendar_.add(UCAL_YEAR, years, status_); }
    // Keeps the time of day; a day past the month's end becomes its last day.
    void setYearMonthDay(int year, int month, int day) {
        calendar_.set(UCAL_DATE, 1);
        calendar_.set(UCAL_YEAR, year);
        calendar_.set(UCAL_MONTH, month - 1);
        calendar_.set(UCAL_DATE, std::clamp(day, 1, daysInMonth()));
    }

private:
    UErrorCode status_ = U_ZERO_ERROR;
    icu::GregorianCalendar calendar_;
};

QStringList monthNamesOfLocale() {
    UErrorCode status = U_ZERO_ERROR;
    const icu::DateFormatSymbols symbols(status);
    int32_t count = 0;
    const icu::UnicodeString* names =
        symbols.getMonths(count, icu::DateFormatSymbols::FORMAT, icu::DateFormatSymbols::WIDE);
    QStringList out;
    for (int32_t i = 0; U_SUCCESS(status) && i < count && i < 12; ++i)
        out.append(QString::fromUtf16(names[i].getBuffer(), names[i].length()));
    return out;
}

}  // namespace

DatePicker::DatePicker(QObject* parent) : View(parent), monthNames_(monthNamesOfLocale()) {
    Calendar today(Clock::now());
    maximumYear_ = today.year();
    years_.setCount(maximumYear_ - minimumYear() + 1);
    today.addYears(-30);
    show(today.instant());
}

void DatePicker::setYearMonthDay(int year, int month, int day) {
    Calendar calendar(date_);
    calendar.setYearMonthDay(std::clamp(year, minimumYear(), maximumYear_),
                             std::clamp(month, 1, 12), day);
    show(calendar.instant());
}

void DatePicker::show(Instant date) {
    Calendar calendar(date);
    const bool changed = date != date_;
    date_ = date;
    shown_ = {calendar.year(), calendar.month(), calendar.day()};
    daysInMonth_ = calendar.daysInMonth();
    days_.setCount(daysInMonth_);
    if (changed) emit dateChanged();
}
