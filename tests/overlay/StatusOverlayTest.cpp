// The shared status overlay: its box around the measured text, its two states and the timed hide.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTest>

#include "overlay/StatusOverlay.h"

namespace {

StatusOverlay& hud() { return StatusOverlay::shared(); }

// Waits out the hide animation and any timed hide still sleeping on its thread.
bool settlesHidden() {
    return QTest::qWaitFor([] { return !hud().isShown() && hud().timedHidesInFlight() == 0; }, 5000);
}

class Overlay : public testing::Test {
protected:
    void TearDown() override {
        StatusOverlay::dismiss();
        EXPECT_TRUE(settlesHidden());
    }
};

}  // namespace

TEST_F(Overlay, BoxGrowsWithItsTextWithinLimits) {
    StatusOverlay::show();
    EXPECT_EQ(std::pair(hud().boxSize(), hud().iconCentre()),
              std::pair(QSizeF(100, 100), QPointF(50, 50)));
    EXPECT_TRUE(hud().labelHidden() && hud().spinning() && hud().imageName().isEmpty());

    // An empty text is still text: like a short one, a label row across the box under the spinner.
    for (const QString& text : {QString(), QString("Saved")}) {
        StatusOverlay::show(text);
        const qreal height = hud().boxSize().height();
        EXPECT_TRUE(!hud().labelHidden() && hud().boxSize().width() == 100 && height > 80);
        EXPECT_EQ(std::pair(hud().labelFrame(), hud().iconCentre()),
                  std::pair(QRectF(0, 66, 100, height - 80), QPointF(50, 36)));
    }

    // Wrapped within 200 points and cut off at 300: at most 224 by 380.
    StatusOverlay::show(QString("A text far too long for the box. ").repeated(30));
    const QSizeF box = hud().boxSize();
    EXPECT_TRUE(box.width() > 200 && box.width() <= 224) << box.width();
    EXPECT_TRUE(box.height() > 300 && box.height() <= 380) << box.height();
}

// A show while shown changes the box in place, one during the shrink is lost with the box; whether
// touches are caught is settled when the box is made.
TEST_F(Overlay, StaysShownUntilTheShrinkEndsAndKeepsItsTouchCatching) {
    StatusOverlay::dismiss();  // nothing to hide
    EXPECT_FALSE(hud().active());

    StatusOverlay::show(std::nullopt, false);
    EXPECT_TRUE(hud().isShown() && hud().catchesTouches());
    ASSERT_TRUE(QTest::qWaitFor([] { return hud().boxOpacity() == 1; }, 2000));  // faded in
    StatusOverlay::show("Again", true);
    EXPECT_EQ(hud().boxOpacity(), 1);  // no second fade-in
    EXPECT_TRUE(hud().catchesTouches());

    StatusOverlay::dismiss();
    EXPECT_TRUE(hud().isShown());
    StatusOverlay::show("Lost");
    EXPECT_EQ(hud().text(), "Lost");
    ASSERT_TRUE(settlesHidden());
    EXPECT_FALSE(hud().active() || hud().catchesTouches());
    EXPECT_TRUE(hud().labelHidden());
    StatusOverlay::show();
    EXPECT_FALSE(hud().catchesTouches());
}

// 0.5 s plus 0.04 s per character; a plain show stays.
TEST_F(Overlay, SuccessAndErrorHideThemselvesAfterTheirDelay) {
    StatusOverlay::show();
    EXPECT_EQ(hud().timedHidesInFlight(), 0);
    QElapsedTimer timer;
    timer.start();
    StatusOverlay::showSuccess("Saved 1234");
    EXPECT_EQ(hud().imageName() + (hud().spinning() ? " spins" : ""),
              "StatusOverlay.bundle/success-color");
    ASSERT_TRUE(settlesHidden());
    EXPECT_GE(timer.restart(), 900);
    StatusOverlay::showError();
    EXPECT_EQ(hud().imageName() + (hud().spinning() ? " spins" : ""),
              "StatusOverlay.bundle/error-color");
    ASSERT_TRUE(settlesHidden());
    EXPECT_GE(timer.elapsed(), 500);
}
