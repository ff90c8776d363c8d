// The real window, drawn offscreen, used the way a person uses it; screenshots of what they
// see land in the build folder's screenshots/.
#include <gtest/gtest.h>

#include <QQuickItem>

#include "app/tabs/MoreScreen.h"
#include "store/AppState.h"
#include "support/AppHarness.h"
#include "ui/TabBarController.h"

namespace {

class EndToEnd : public testing::TestWithParam<bool> {
protected:
    bool pad() const { return GetParam(); }
    QString idiom() const { return pad() ? "pad" : "phone"; }
};

TEST_P(EndToEnd, TabsAreReachableByNameAndShowTheirScreens) {
    AppHarness app({.pad = pad(), .firstTime = QString("no")});
    app.launch();
    for (const char* tab : {"Today", "Food", "Exercise", "Log", "More"})
        EXPECT_NE(app.findByName(tab), nullptr) << tab;
    app.saveScreenshot(idiom() + "-tabs");

    ASSERT_TRUE(app.click("More"));
    EXPECT_EQ(AppState::shared().tabBarController->selectedIndex(), 4);
    EXPECT_NE(app.findByName("About Calorie Counter"), nullptr);
    // Everything fits in the scroll area's fixed content height.
    auto* more = qobject_cast<MoreScreen*>(
        AppState::shared().tabBarController->selectedViewController()->topViewController());
    QQuickItem* last = app.findByName(more->lb2()->text());
    ASSERT_NE(last, nullptr);
    EXPECT_LE(last->y() + last->height(), more->mainscrol()->contentSize().height());
    app.saveScreenshot(idiom() + "-more");

    ASSERT_TRUE(app.press("Log"));  // the accessibility action, as a screen reader presses it
    EXPECT_EQ(AppState::shared().tabBarController->selectedIndex(), 3);
}

INSTANTIATE_TEST_SUITE_P(Idioms, EndToEnd, testing::Values(false, true),
                         [](const auto& info) { return info.param ? "Pad" : "Phone"; });

}  // namespace
