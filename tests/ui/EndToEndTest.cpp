// The real window, drawn offscreen, used the way a person uses it; screenshots of what they
// see land in the build folder's screenshots/.
#include <gtest/gtest.h>

#include <QQuickItem>

#include "app/MoreScreen.h"
#include "app/TabBar.h"
#include "setup/MeasureUnitScreen.h"
#include "store/AppState.h"
#include "support/AppHarness.h"
#include "ui/TabBarController.h"

namespace {

class EndToEnd : public testing::TestWithParam<bool> {
protected:
    bool pad() const { return GetParam(); }
    QString idiom() const { return pad() ? "pad" : "phone"; }
};

// The window shows more than a blank: some pixels differ from the first one.
bool showsSomething(const QImage& image) {
    const QRgb first = image.pixel(0, 0);
    for (int y = 0; y < image.height(); y += 7)
        for (int x = 0; x < image.width(); x += 7)
            if (image.pixel(x, y) != first) return true;
    return false;
}

}  // namespace

TEST_P(EndToEnd, FirstStartShowsTheSetUpWizard) {
    AppHarness app({.pad = pad()});
    app.launch();
    const QImage shot = app.grab();
    EXPECT_EQ(shot.size(), pad() ? QSize(768, 1024) : QSize(320, 568));
    EXPECT_TRUE(showsSomething(shot));
    EXPECT_NE(qobject_cast<MeasureUnitScreen*>(
                  app.window()->rootViewController()->topViewController()),
              nullptr);
    EXPECT_EQ(app.findByName("Today"), nullptr);  // no tabs before set-up
    app.saveScreenshot(idiom() + "-first-start");
}

TEST_P(EndToEnd, TabsAreReachableByNameAndShowTheirScreens) {
    AppHarness app({.pad = pad(), .firstTime = QString("no")});
    app.launch();
    for (const char* tab : {"Today", "Food", "Exercise", "Log", "More"})
        EXPECT_NE(app.findByName(tab), nullptr) << tab;
    app.saveScreenshot(idiom() + "-today");

    ASSERT_TRUE(app.click("More"));
    EXPECT_EQ(AppState::shared().tabBarController->selectedIndex(), 4);
    EXPECT_NE(app.findByName("About Calorie Counter"), nullptr);
    // Everything fits in the scroll area's fixed content height.
    auto* more = qobject_cast<MoreScreen*>(
        AppState::shared().tabBarController->selectedViewController()->topViewController());
    QQuickItem* last = app.findByName(more->lb2()->text());
    ASSERT_NE(last, nullptr);
    EXPECT_LE(last->y() + last->height(), 690);
    app.saveScreenshot(idiom() + "-more");

    ASSERT_TRUE(app.press("Log"));  // the accessibility action, as a screen reader presses it
    EXPECT_EQ(AppState::shared().tabBarController->selectedIndex(), 3);
}

INSTANTIATE_TEST_SUITE_P(Idioms, EndToEnd, testing::Values(false, true),
                         [](const auto& info) { return info.param ? "Pad" : "Phone"; });
