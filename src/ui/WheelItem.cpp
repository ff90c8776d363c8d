#include "ui/WheelItem.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QKeyEvent>
#include <cmath>

#include "ui/WheelAccessible.h"

WheelItem::WheelItem(QQuickItem* parent) : QQuickItem(parent) {
    setActiveFocusOnTab(true);
    setFlag(ItemIsFocusScope, false);
    WheelAccessible::install();
}

void WheelItem::setSource(Wheel* source) {
    if (source == source_) return;
    if (source_) disconnect(source_, nullptr, this, nullptr);
    source_ = source;
    if (source_) {
        connect(source_, &Wheel::countChanged, this, [this] {
            emit countChanged();
            announce();
        });
    }
    emit sourceChanged();
    emit countChanged();
    announce();
}

void WheelItem::setCurrentIndex(int row) {
    if (row == current_) return;
    current_ = row;
    announce();
}

QString WheelItem::titleAt(int row) const { return source_ && hasRow(row) ? source_->title(row) : QString(); }

double WheelItem::numberAt(int row) const {
    const QString title = titleAt(row).trimmed();
    bool ok = false;
    const double number = title.toDouble(&ok);
    return ok && std::isfinite(number) ? number : row + 1;
}

QString WheelItem::spokenTitle() const {
    const QString title = this->title();
    return title.trimmed().isEmpty() ? QCoreApplication::translate("WheelItem", "none") : title;
}

void WheelItem::turnToValue(double value) {
    if (!hasRow(current_) || value == numberAt(current_)) return;
    int best = current_;
    for (int row = 0; row < count(); ++row) {
        if (std::abs(numberAt(row) - value) < std::abs(numberAt(best) - value)) best = row;
    }
    turnTo(best);
}

void WheelItem::turnTo(int row) {
    row = std::clamp(row, 0, std::max(0, count() - 1));
    if (!isVisible() || !isEnabled() || !hasRow(row) || row == current_) return;
    emit selectRequested(row);
    emit settled(row);
}

void WheelItem::scrollBy(int angleDelta) {
    notches_ += angleDelta;
    const int rows = notches_ / 120;
    notches_ -= rows * 120;
    // Towards the user brings earlier rows into the band.
    if (rows != 0) turnBy(-rows);
}

void WheelItem::keyPressEvent(QKeyEvent* event) {
    const int last = count() - 1;
    switch (event->key()) {
    case Qt::Key_Up: turnBy(-1); break;
    case Qt::Key_Down: turnBy(1); break;
    case Qt::Key_PageUp: turnBy(-pageRows()); break;
    case Qt::Key_PageDown: turnBy(pageRows()); break;
    case Qt::Key_Home: turnTo(0); break;
    case Qt::Key_End: turnTo(last); break;
    default: QQuickItem::keyPressEvent(event); return;
    }
    event->accept();
}

void WheelItem::announce() {
    emit currentChanged();
    if (!QAccessible::isActive()) return;
    QAccessibleValueChangeEvent valueChange(this, value());
    QAccessible::updateAccessibility(&valueChange);
    // Read anew as the wheel's text, which a screen reader speaks in place of the number.
    QAccessibleTextUpdateEvent textChange(this, 0, QString(), spokenTitle());
    QAccessible::updateAccessibility(&textChange);
}
