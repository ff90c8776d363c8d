#include "ui/KeyboardLift.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QQuickItem>
#include <algorithm>

namespace {
constexpr qreal kRoom = 8;  // between the item and the keyboard's top
}

KeyboardLift::KeyboardLift(QObject* parent) : QObject(parent) {
    // Asked only once it has said something: Qt 6.4's Wayland input context crashes when asked
    // on a seat without text input.
    QInputMethod* keyboard = QGuiApplication::inputMethod();
    const auto keyboardMoved = [this, keyboard] {
        keyboard_ = keyboard->isVisible() ? keyboard->keyboardRectangle() : QRectF();
        update();
    };
    connect(keyboard, &QInputMethod::keyboardRectangleChanged, this, keyboardMoved);
    connect(keyboard, &QInputMethod::visibleChanged, this, keyboardMoved);
}

void KeyboardLift::setWindow(QQuickWindow* window) {
    if (window == window_) return;
    disconnect(focusWatch_);
    window_ = window;
    if (window_) focusWatch_ = connect(window_, &QQuickWindow::activeFocusItemChanged, this, &KeyboardLift::update);
    emit windowChanged();
    update();
}

qreal KeyboardLift::liftFor(const QRectF& focused, const QRectF& keyboard) {
    if (keyboard.isEmpty() || focused.isEmpty()) return 0;
    const qreal covered = focused.bottom() + kRoom - keyboard.top();
    return std::clamp(covered, qreal(0), std::max(qreal(0), focused.top() - kRoom));
}

void KeyboardLift::update() {
    const QQuickItem* item = window_ ? window_->activeFocusItem() : nullptr;
    qreal lift = 0;
    if (item && (item->flags() & QQuickItem::ItemAcceptsInputMethod)) {
        // Where the item would be without the present lift.
        const QRectF focused = item->mapRectToScene(item->boundingRect()).translated(0, offset_);
        lift = liftFor(focused, keyboard_);
    }
    if (qFuzzyCompare(lift + 1, offset_ + 1)) return;
    offset_ = lift;
    emit offsetChanged();
}
