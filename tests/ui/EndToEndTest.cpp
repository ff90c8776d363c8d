// The More and Log tabs reached in the real window, drawn offscreen, by a click and by the action a
// screen reader uses (the walks reach the others); screenshots land in the build folder's
// screenshots/.
#include <gtest/gtest.h>

#include <QQuickItem>

#include "app/tabs/MoreScreen.h"
#include "store/AppState.h"
#include "support/AppHarness.h"
#include "ui/TabBarController.h"

namespace {

class EndToEnd : public testing::TestWithParam<bool> {};

TEST_P(EndToEnd, MoreIsReachableAndFitsAndLogIsPressedByItsAction) {
    const QString idiom = GetParam() ? "pad" : "phone";
    AppHarness app({.pad = GetParam(), .firstTime = QString("no")});
    app.launch();
    TabBarController* tabs = AppState::shared().tabBarController;
    ASSERT_TRUE(app.click("More"));
    EXPECT_EQ(tabs->selectedIndex(), 4);
    EXPECT_NE(app.findByName("About Calorie Counter"), nullptr);
    // Everything fits in the scroll area's fixed content height.
    auto* more = qobject_cast<MoreScreen*>(tabs->selectedViewController()->topViewController());
    QQuickItem* last = app.findByName(more->lb2()->text());
    ASSERT_NE(last, nullptr);
    EXPECT_LE(last->y() + last->height(), more->mainscrol()->contentSize().height());
    app.saveScreenshot(idiom + "-more");

    ASSERT_TRUE(app.press("Log"));  // the accessibility action, as a screen reader presses it
    EXPECT_EQ(tabs->selectedIndex(), 3);
}

INSTANTIATE_TEST_SUITE_P(Idioms, EndToEnd, testing::Values(false, true),
                         [](const auto& info) { return info.param ? "Pad" : "Phone"; });

}  // namespace
