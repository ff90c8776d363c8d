// The shared status overlay: its box around the text, its two states and the timed hide.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTest>

#include "overlay/StatusOverlay.h"
#include "support/AppHarness.h"

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

    // An empty text is still text: the label row goes below the spinner.
    StatusOverlay::show(QString());
    EXPECT_FALSE(hud().labelHidden());
    EXPECT_EQ(hud().boxSize().width(), 100);
    EXPECT_GT(hud().boxSize().height(), 80);
    EXPECT_EQ(hud().iconCentre(), QPointF(50, 36));

    StatusOverlay::show("Saved");
    EXPECT_EQ(hud().boxSize().width(), 100);
    EXPECT_EQ(hud().labelFrame(), QRectF(0, 66, 100, hud().boxSize().height() - 80));

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
    EXPECT_EQ(hud().boxOpacity(), 0);  // grows in from 1.4 times its size
    EXPECT_NEAR(hud().boxScale(), 1.4, 1e-6);
    ASSERT_TRUE(QTest::qWaitFor([] { return hud().boxOpacity() == 1; }, 2000));
    EXPECT_NEAR(hud().boxScale(), 1, 1e-6);
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

TEST_F(Overlay, SuccessAndErrorHideThemselvesAfterTheirDelay) {
    StatusOverlay::show();
    EXPECT_EQ(hud().timedHidesInFlight(), 0);  // a plain show stays

    struct Case {
        void (*show)(const std::optional<QString>&, bool);
        std::optional<QString> text;
        const char* image;
        int atLeastMs;  // 0.5 s plus 0.04 s per character
    };
    for (const Case& c : {Case{&StatusOverlay::showSuccess, QString("Saved 1234"),
                               "StatusOverlay.bundle/success-color", 900},
                          Case{&StatusOverlay::showError, std::nullopt,
                               "StatusOverlay.bundle/error-color", 500}}) {
        SCOPED_TRACE(c.image);
        QElapsedTimer timer;
        timer.start();
        c.show(c.text, true);
        EXPECT_EQ(hud().imageName(), c.image);
        EXPECT_FALSE(hud().spinning());
        ASSERT_TRUE(settlesHidden());
        EXPECT_GE(timer.elapsed(), c.atLeastMs);
    }

    // A timed hide hides whatever is shown when its time is up, even a later message.
    StatusOverlay::showSuccess(QString());
    StatusOverlay::show("Working");
    EXPECT_TRUE(settlesHidden());
}

TEST_F(Overlay, WithoutInteractionTouchesAreCaughtForTheBoxsLife) {
    StatusOverlay::show(std::nullopt, false);
    EXPECT_TRUE(hud().catchesTouches());
    StatusOverlay::show(std::nullopt, true);  // the box that is up keeps its catcher
    EXPECT_TRUE(hud().catchesTouches());
    StatusOverlay::dismiss();
    ASSERT_TRUE(settlesHidden());
    StatusOverlay::show();
    EXPECT_FALSE(hud().catchesTouches());
}

TEST_F(Overlay, SitsUprightInTheMiddleOfTheWindow) {
    for (const QSize size : {QSize(320, 568), QSize(768, 1024)}) {
        HarnessOptions options;
        options.screen = size;
        AppHarness app(options);
        app.launch();
        StatusOverlay::show();
        EXPECT_EQ(hud().centre(), QPointF(size.width() / 2.0, size.height() / 2.0));
        EXPECT_EQ(hud().rotation(), 0);
    }
}
