#pragma once
// The control around one picker wheel: what a turn is, and how the wheel reads to the keyboard and
// to assistive technology. The QML drawing beneath it (a Tumbler) shows the rows and reports the
// row in the band as currentIndex.
//
// A user's turn, however it is made, ends in one settled(row): a drag or flick when the wheel
// comes to rest; a notch of the mouse wheel, an arrow or page key, or assistive technology's
// increase, decrease or new value at once, as each of those places the row without gliding.
// Assistive technology sees a spin button: its value is the number on the wheel, or for a wheel
// of words the row counted from 1; its text is the title, and "none" for a blank row.

#include <QtQml/qqmlregistration.h>
#include <QQuickItem>

#include "ui/Wheel.h"

class WheelItem : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    // Null once its picker has made new wheels, until this one goes.
    Q_PROPERTY(Wheel* source READ source WRITE setSource NOTIFY sourceChanged REQUIRED)
    // Kept by the drawing: the row in the band.
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex NOTIFY currentChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(QString title READ title NOTIFY currentChanged)
    // A wheel whose only row is blank shows nothing, and is left out of the accessibility tree.
    Q_PROPERTY(bool showsNothing READ showsNothing NOTIFY currentChanged)
    Q_PROPERTY(int pageRows READ pageRows CONSTANT)

public:
    explicit WheelItem(QQuickItem* parent = nullptr);

    Wheel* source() const { return source_; }
    void setSource(Wheel* source);
    int currentIndex() const { return current_; }
    void setCurrentIndex(int row);
    int count() const { return source_ ? source_->count() : 0; }
    QString title() const { return titleAt(current_); }
    bool showsNothing() const { return count() <= 1 && title().trimmed().isEmpty(); }

    Q_INVOKABLE QString titleAt(int row) const;
    // The number a row stands for: its title when that is a number, else its place from 1.
    double numberAt(int row) const;
    double value() const { return hasRow(current_) ? numberAt(current_) : 0; }
    // What a screen reader says for the row in the band.
    QString spokenTitle() const;
    // Assistive technology's new value: the row whose number is nearest.
    void turnToValue(double value);

    // A user's turn to row (clamped); nothing happens when the wheel cannot move or is covered.
    Q_INVOKABLE void turnTo(int row);
    Q_INVOKABLE void turnBy(int rows) { turnTo(current_ + rows); }
    // A mouse wheel's angle delta, in eighths of a degree: a turn of a row per 15 degrees.
    Q_INVOKABLE void scrollBy(int angleDelta);
    // Rows a page key moves: those the wheel shows at once.
    static int pageRows() { return 5; }

signals:
    void sourceChanged();
    void currentChanged();
    void countChanged();
    // The drawing puts row in the band at once.
    void selectRequested(int row);
    void settled(int row);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool hasRow(int row) const { return row >= 0 && row < count(); }
    void announce();

    Wheel* source_ = nullptr;
    int current_ = -1;
    int notches_ = 0;  // eighths of a degree short of a whole row
};
