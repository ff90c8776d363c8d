// The shared status overlay: its two states, the timed hide and the glide that follows the
// keyboard. The box's arithmetic is OverlayLayoutTest's.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QTest>

#include "overlay/StatusOverlay.h"
#include "setup/WizardApp.h"

namespace {

StatusOverlay& hud() { return StatusOverlay::shared(); }

// Waits out the hide animation and any timed hide still sleeping on its thread.
bool settlesHidden() {
    return QTest::qWaitFor([] { return !hud().isShown() && !hud().timedHidesInFlight(); }, 5000);
}

// Earlier tests of the app may leave the box shrinking; each test starts and ends without it.
class Overlay : public testing::Test {
protected:
    void SetUp() override {
        StatusOverlay::dismiss();
        ASSERT_TRUE(settlesHidden());
    }
    void TearDown() override {
        StatusOverlay::dismiss();
        EXPECT_TRUE(settlesHidden());
    }
};

}  // namespace

// A show while shown keeps the box, one during the shrink is lost with it; whether touches are
// caught is settled when the box is made.
TEST_F(Overlay, StaysShownUntilTheShrinkEndsAndKeepsItsTouchCatching) {
    StatusOverlay::show(std::nullopt, false);
    StatusOverlay::show("Again", true);
    EXPECT_TRUE(hud().catchesTouches());

    StatusOverlay::dismiss();
    EXPECT_TRUE(hud().isShown());
    StatusOverlay::show("Lost");
    ASSERT_TRUE(settlesHidden());
    EXPECT_TRUE(!hud().active() && !hud().catchesTouches() && hud().labelHidden());
    StatusOverlay::show();
    EXPECT_FALSE(hud().catchesTouches());
}

// An error shows its picture, not the spinner, for 0.5 s plus 0.04 s per character; a plain show
// stays.
TEST_F(Overlay, AnErrorHidesItselfAfterItsDelay) {
    StatusOverlay::show();
    EXPECT_TRUE(hud().spinning() && hud().timedHidesInFlight() == 0);
    QElapsedTimer timer;
    timer.start();
    StatusOverlay::showError("Not saved");
    EXPECT_EQ(hud().imageName() + (hud().spinning() ? " spins" : ""),
              "StatusOverlay.bundle/error-color");
    ASSERT_TRUE(settlesHidden());
    EXPECT_GE(timer.elapsed(), 860);
}

// A show puts the box in the middle of the window at once; when the keyboard comes or goes it
// glides to the new middle instead of jumping there.
TEST_F(Overlay, JumpsIntoPlaceOnAShowButGlidesWithTheKeyboard) {
    WizardApp app;  // a 320 by 568 window
    StatusOverlay::show();
    EXPECT_EQ(hud().centre(), QPointF(160, 284));
    app.window()->setDesignSize(QSizeF(768, 1024));
    app.window()->setViewport(QSizeF(768, 1024));
    emit QGuiApplication::inputMethod()->visibleChanged();
    EXPECT_EQ(hud().centre(), QPointF(160, 284));
    EXPECT_TRUE(QTest::qWaitFor([] { return hud().centre() == QPointF(384, 512); }, 2000));
}
