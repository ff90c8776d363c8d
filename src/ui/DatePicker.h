#pragma once
// A date picker: wheels for month, day and year in the default time zone and locale. Turning a
// wheel changes the date at once and keeps its time of day, as the platform's picker does.

#include <QtQml/qqmlregistration.h>
#include <QStringList>

#include "store/Dates.h"
#include "ui/View.h"
#include "ui/Wheel.h"

class DatePicker : public View {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int year READ year NOTIFY dateChanged)
    Q_PROPERTY(int month READ month NOTIFY dateChanged)  // 1-12
    Q_PROPERTY(int day READ day NOTIFY dateChanged)
    Q_PROPERTY(int daysInMonth READ daysInMonth NOTIFY dateChanged)
    Q_PROPERTY(int minimumYear READ minimumYear CONSTANT)
    Q_PROPERTY(int maximumYear READ maximumYear CONSTANT)
    // The wheels: the months by name, the days of the month shown, the years from the first.
    Q_PROPERTY(Wheel* months READ months CONSTANT)
    Q_PROPERTY(Wheel* days READ days CONSTANT)
    Q_PROPERTY(Wheel* years READ years CONSTANT)

public:
    // Starts on this day thirty years ago; the years run from 1900 to this year.
    explicit DatePicker(QObject* parent = nullptr);

    Instant date() const { return date_; }

    int year() const { return shown_.year; }
    int month() const { return shown_.month; }
    int day() const { return shown_.day; }
    int daysInMonth() const { return daysInMonth_; }
    int minimumYear() const { return 1900; }
    int maximumYear() const { return maximumYear_; }
    QStringList monthNames() const { return monthNames_; }
    Wheel* months() { return &months_; }
    Wheel* days() { return &days_; }
    Wheel* years() { return &years_; }

    // The wheels stand on year, month (1-12) and day. A day past the end of the month becomes
    // its last day, as the day wheel then has no more rows; a year out of range its nearest end.
    Q_INVOKABLE void setYearMonthDay(int year, int month, int day);

signals:
    void dateChanged();

private:
    void show(Instant date);

    Instant date_;
    CalendarDay shown_{};
    int daysInMonth_ = 31;
    int maximumYear_ = 0;
    QStringList monthNames_;
    Wheel months_{12, [this](int row) { return monthNames_.value(row); }};
    Wheel days_{31, [](int row) { return QString::number(row + 1); }};
    Wheel years_{1, [this](int row) { return QString::number(minimumYear() + row); }};
};
