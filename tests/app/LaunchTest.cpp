#include <gtest/gtest.h>

#include <QElapsedTimer>

#include "app/SplashScreen.h"
#include "app/tabs/TabBar.h"
#include "setup/MeasureUnitScreen.h"
#include "store/AppState.h"
#include "support/AppHarness.h"

using namespace std::chrono_literals;

namespace {

ViewController* firstScreen(AppHarness& app) {
    return app.window()->rootViewController()->viewControllers().first();
}

}  // namespace

TEST(Launch, RoutesOnFirstTimeBeingExactlyNo) {
    const std::optional<QString> values[] = {std::nullopt, QString("no"), QString("No"),
                                             QString("yes")};
    for (const auto& value : values) {
        AppHarness app({.firstTime = value});
        LogCapture log;
        app.launch();
        const bool tabs = value == QString("no");
        EXPECT_EQ(qobject_cast<TabBar*>(firstScreen(app)) != nullptr, tabs)
            << value.value_or("(absent)").toStdString();
        EXPECT_EQ(qobject_cast<MeasureUnitScreen*>(firstScreen(app)) != nullptr, !tabs);
        EXPECT_EQ(log.contains("firstTime"), !tabs);
        EXPECT_EQ(app.window()->backgroundPatternImage(), "bg");
    }
}

TEST(Launch, HoldsTheLaunchImage) {
    AppHarness app({.launchHoldMs = 300});
    QElapsedTimer timer;
    timer.start();
    app.launch();
    EXPECT_GE(timer.elapsed(), 300);
}

TEST(TabInterface, ReadsThePlanAndSetsTheDayIndexes) {
    AppHarness app({.firstTime = QString("no")});
    writePlan(app.prepareDatabase(), Clock::now() - 36h, "1850.5", 2);
    app.launch();
    const AppState& state = AppState::shared();
    EXPECT_EQ(state.calorieBudgetValue, 1850);
    EXPECT_EQ(state.todayIndex, 1);
    EXPECT_EQ(state.dayIndex, 1);
    EXPECT_EQ(state.foodNames.size(), 8816u);
    EXPECT_EQ(state.foodNames.size(), state.foodCalories.size());
    EXPECT_EQ(state.dailyRows.size(), 2u);  // the placeholder row is passed over
}

TEST(SplashScreen, MakesTheSameChoiceAndHidesTheBarMeanwhile) {
    AppHarness app({.firstTime = QString("no")});
    app.launch();
    NavigationController* nav = app.window()->rootViewController();
    nav->pushViewController(new SplashScreen(true), false);
    EXPECT_TRUE(AppState::shared().isPad);
    ASSERT_EQ(nav->viewControllers().size(), 3);
    EXPECT_NE(qobject_cast<TabBar*>(nav->topViewController()), nullptr);
    EXPECT_FALSE(nav->navigationBarHidden());  // hidden while shown, shown again once covered
}
