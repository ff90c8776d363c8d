#pragma once
// One finger on the real window, for the walks done by touch.

#include <gtest/gtest.h>

#include <QPointingDevice>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <algorithm>

#include "support/AppHarness.h"

// A Linux phone's window: the phone's canvas scaled by 1.125.
inline constexpr QSize kPhoneWindow(360, 720);

inline bool atRest(QQuickItem* flickable) {
    return QTest::qWaitFor([flickable] { return !flickable->property("moving").toBool(); }, 10000);
}

// It moves a frame a step, so that lifting it while moving is a flick with real speed.
class Finger {
public:
    explicit Finger(AppHarness& app) : window_(app.quickWindow()), app_(app) {}

    void down(QPointF at) { QTest::touchEvent(window_, device()).press(0, (at_ = at).toPoint()); }
    void moveTo(QPointF to, int steps = 5) {
        const QPointF from = at_;
        for (int i = 1; i <= steps; ++i) {
            QTest::qWait(16);
            at_ = from + (to - from) * i / steps;
            QTest::touchEvent(window_, device()).move(0, at_.toPoint());
        }
    }
    void up() { QTest::touchEvent(window_, device()).release(0, at_.toPoint()); }
    // A tap, with the small wander of a real fingertip; done once no screen is sliding in, as a
    // control tapped mid-push is not where it comes to stand.
    void tap(QPointF at, QPointF wander = {}) {
        down(at);
        if (!wander.isNull()) moveTo(at + wander, 1);
        up();
        QTest::qWait(20);
        EXPECT_TRUE(QTest::qWaitFor([this] { return !sliding(window_->contentItem()); }, 3000));
    }
    bool tap(const QString& name) {
        QQuickItem* item = app_.findByName(name);
        if (item) tap(centre(item));
        return item;
    }

private:
    static bool sliding(QQuickItem* item) {
        if (item->inherits("QQuickStackView") && item->property("busy").toBool()) return true;
        const QList<QQuickItem*> children = item->childItems();
        return std::any_of(children.begin(), children.end(), sliding);
    }
    static QPointingDevice* device() {
        static QPointingDevice* touchScreen = QTest::createTouchDevice();
        return touchScreen;
    }

    QQuickWindow* window_;
    AppHarness& app_;
    QPointF at_;
};
