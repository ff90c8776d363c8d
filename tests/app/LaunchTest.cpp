#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QQuickItem>

#include "app/SplashScreen.h"
#include "app/tabs/TabBar.h"
#include "setup/MeasureUnitScreen.h"
#include "store/AppState.h"
#include "support/AppHarness.h"
#include "ui/TabBarController.h"
#include "ui/Theme.h"

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

TEST(Launch, CopiesTheDatabaseOnceAndNeverReplacesIt) {
    AppHarness app;
    app.launch();
    ASSERT_TRUE(std::filesystem::exists(app.databasePath()));
    EXPECT_EQ(AppState::shared().databasePath, app.databasePath());
    execSql(app.databasePath(), "UPDATE profileData SET calorieBudget = '1234' WHERE id = 2");
    app.launch();
    EXPECT_EQ(queryColumn(app.databasePath(), "SELECT calorieBudget FROM profileData WHERE id = 2"),
              std::vector<std::string>{"1234"});
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

TEST(TabInterface, FiveTabsWithTitlesImagesAndIdiomLayouts) {
    for (const bool pad : {false, true}) {
        AppHarness app({.pad = pad, .firstTime = QString("no")});
        app.launch();
        auto* tabs = AppState::shared().tabBarController;
        ASSERT_NE(tabs, nullptr);
        EXPECT_EQ(app.window()->subviews(), QList<QObject*>{tabs});
        EXPECT_EQ(tabs->selectedIndex(), 0);
        EXPECT_EQ(tabs->tintColor(), Theme::tint());
        const QStringList titles{"Today", "Food", "Exercise", "Log", "More"};
        const QStringList images{"today", "food", "excersice", "log", "more"};
        ASSERT_EQ(tabs->viewControllers().size(), 5);
        for (int i = 0; i < 5; ++i) {
            NavigationController* nav = tabs->viewControllers()[i];
            ViewController* screen = nav->viewControllers().first();
            EXPECT_EQ(screen->tabBarItem()->title(), titles[i]);
            EXPECT_EQ(screen->tabBarItem()->imageName(), images[i]);
            EXPECT_EQ(nav->barTintColor(), Theme::tint());
        }
        // The first tab is drawn at once, by its idiom's layout.
        const QQuickItem* today = app.layoutOf(tabs->viewControllers()[0]->topViewController());
        ASSERT_NE(today, nullptr);
        EXPECT_TRUE(QString(today->metaObject()->className())
                        .startsWith(pad ? "TodayPadLayout_" : "TodayLayout_"))
            << today->metaObject()->className();
        EXPECT_EQ(app.window()->backgroundPatternImage(), pad ? "bgiPad" : "bg");
        EXPECT_EQ(AppState::shared().isPad, pad);
    }
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
