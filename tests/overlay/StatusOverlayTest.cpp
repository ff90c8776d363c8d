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
    EXPECT_EQ(hud().boxSize(), QSizeF(100, 100));
    EXPECT_EQ(hud().iconCentre(), QPointF(50, 50));
    EXPECT_TRUE(hud().labelHidden());
    EXPECT_TRUE(hud().spinning());
    EXPECT_TRUE(hud().imageName().isEmpty());

    // An empty text is still text: like a short one, a label row across the box under the spinner.
    for (const QString& text : {QString(), QString("Saved")}) {
        StatusOverlay::show(text);
        EXPECT_FALSE(hud().labelHidden());
        EXPECT_EQ(hud().boxSize().width(), 100);
        EXPECT_GT(hud().boxSize().height(), 80);
        EXPECT_EQ(hud().labelFrame(), QRectF(0, 66, 100, hud().boxSize().height() - 80));
        EXPECT_EQ(hud().iconCentre(), QPointF(50, 36));
    }

    // Wrapped within 200 points and cut off at 300: at most 224 by 380.
    StatusOverlay::show(QString("A text far too long for the box. ").repeated(30));
    const QSizeF box = hud().boxSize();
    EXPECT_GT(box.width(), 200);
    EXPECT_LE(box.width(), 224);
    EXPECT_GT(box.height(), 300);
    EXPECT_LE(box.height(), 380);
}

TEST_F(Overlay, StaysShownUntilTheShrinkEndsSoAShowMeanwhileIsLost) {
    StatusOverlay::dismiss();  // nothing to hide
    EXPECT_FALSE(hud().active());

    StatusOverlay::show();
    EXPECT_TRUE(hud().isShown());
    ASSERT_TRUE(QTest::qWaitFor([] { return hud().boxOpacity() == 1; }, 2000));  // faded in
    StatusOverlay::show("Again");
    EXPECT_EQ(hud().boxOpacity(), 1);  // changed in place, no second fade-in

    StatusOverlay::dismiss();
    EXPECT_TRUE(hud().isShown());
    StatusOverlay::show("Lost");
    EXPECT_EQ(hud().text(), "Lost");
    ASSERT_TRUE(settlesHidden());
    EXPECT_FALSE(hud().active());
    EXPECT_TRUE(hud().labelHidden());
}

// 0.5 s plus 0.04 s per character; a plain show stays.
TEST_F(Overlay, SuccessAndErrorHideThemselvesAfterTheirDelay) {
    StatusOverlay::show();
    EXPECT_EQ(hud().timedHidesInFlight(), 0);
    QElapsedTimer timer;
    timer.start();
    StatusOverlay::showSuccess("Saved 1234");
    EXPECT_EQ(hud().imageName(), "StatusOverlay.bundle/success-color");
    EXPECT_FALSE(hud().spinning());
    ASSERT_TRUE(settlesHidden());
    EXPECT_GE(timer.restart(), 900);
    StatusOverlay::showError();
    EXPECT_EQ(hud().imageName(), "StatusOverlay.bundle/error-color");
    EXPECT_FALSE(hud().spinning());
    ASSERT_TRUE(settlesHidden());
    EXPECT_GE(timer.elapsed(), 500);
}

// Whether touches are caught is settled when the box is made, for as long as it lives.
TEST_F(Overlay, WithoutInteractionTouchesAreCaughtForTheBoxsLife) {
    StatusOverlay::show(std::nullopt, false);
    EXPECT_TRUE(hud().catchesTouches());
    StatusOverlay::show(std::nullopt, true);
    EXPECT_TRUE(hud().catchesTouches());
    StatusOverlay::dismiss();
    ASSERT_TRUE(settlesHidden());
    StatusOverlay::show();
    EXPECT_FALSE(hud().catchesTouches());
}
