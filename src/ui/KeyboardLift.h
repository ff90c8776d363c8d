#pragma once
// Keeps the item with the keyboard in sight above a touch keyboard that covers the lower part of
// the window, where the platform says where its keyboard is: the window's content goes up by as
// much as the keyboard would cover of that item, and back down as the keyboard goes.

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QPointer>
#include <QQuickWindow>
#include <QRectF>

class KeyboardLift : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickWindow* window READ window WRITE setWindow NOTIFY windowChanged)
    // How far the content goes up, in window pixels.
    Q_PROPERTY(qreal offset READ offset NOTIFY offsetChanged)

public:
    explicit KeyboardLift(QObject* parent = nullptr);

    QQuickWindow* window() const { return window_; }
    void setWindow(QQuickWindow* window);
    qreal offset() const { return offset_; }

    // The lift that shows focused (where it is without a lift) whole above keyboard, with a
    // little room, without pushing its top out of the window; none without a keyboard.
    static qreal liftFor(const QRectF& focused, const QRectF& keyboard);

signals:
    void windowChanged();
    void offsetChanged();

private:
    void update();

    QPointer<QQuickWindow> window_;
    QMetaObject::Connection focusWatch_;
    QRectF keyboard_;  // empty while no keyboard shows
    qreal offset_ = 0;
};
