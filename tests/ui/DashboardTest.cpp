// The Today and Log tabs and the status overlay in the real window, used by name as a person or
// a screen reader would, on a plan with calories booked; screenshots of what they see.
#include <gtest/gtest.h>

#include <QQuickItem>
#include <QTest>

#include "dashboard/TodayScreen.h"
#include "overlay/StatusOverlay.h"
#include "store/AppState.h"
#include "store/CalorieStore.h"
#include "support/AppHarness.h"
#include "ui/TabBarController.h"

using namespace std::chrono_literals;

namespace {

class Dashboard : public testing::TestWithParam<bool> {
protected:
    bool pad() const { return GetParam(); }
    QString idiom() const { return pad() ? "pad" : "phone"; }

    // Three days into a 1850-calorie plan, with calories booked on each day so far.
    void launch() {
        HarnessOptions options;
        options.pad = pad();
        options.firstTime = QString("no");
        app = std::make_unique<AppHarness>(options);
        const std::string db = app->prepareDatabase();
        writePlan(db, Clock::now() - 73h, "1850", 366);
        execSql(db,
                "UPDATE dailyData SET calorieConsumed = 1420, calorieBurned = 310 WHERE id = 0;"
                "UPDATE dailyData SET calorieConsumed = 2240, calorieBurned = 0 WHERE id = 1;"
                "UPDATE dailyData SET calorieConsumed = 1980, calorieBurned = 450 WHERE id = 2;"
                "UPDATE dailyData SET calorieConsumed = 1240, calorieBurned = 220 WHERE id = 3;");
        app->launch();
    }
    TabBarController* tabs() { return AppState::shared().tabBarController; }
    bool sheetShown() { return !app->window()->presented().isEmpty(); }

    std::unique_ptr<AppHarness> app;
};

bool settledHidden() {
    return QTest::qWaitFor([] { return !StatusOverlay::shared().isShown(); }, 3000);
}

}  // namespace

TEST_P(Dashboard, TodayShowsTheGaugeAndOpensTheAddMenus) {
    launch();
    for (const char* shown : {"610", "1240 Cal", "220 Cal", "Calories left", "1000", "1500",
                              "2000", "3000", "Budget", "1850"})
        EXPECT_NE(app->findByName(shown), nullptr) << shown;
    auto* today = qobject_cast<TodayScreen*>(tabs()->viewControllers()[0]->topViewController());
    EXPECT_EQ(today->shapeLayer()->from().y(), pad() ? 200 : 117);
    app->saveScreenshot(idiom() + "-today");

    ASSERT_TRUE(app->click("Add"));
    ASSERT_TRUE(app->click("Cancel"));
    ASSERT_TRUE(app->click("Add Excercise"));  // the add menu came back
    ASSERT_TRUE(app->click("Custom exercise"));
    EXPECT_TRUE(AppState::shared().customEntryIsExercise);
    tabs()->viewControllers()[0]->popViewController(false);
    ASSERT_TRUE(app->click("Add food"));
    app->saveScreenshot(idiom() + "-today-food-menu");
    ASSERT_TRUE(app->click("Search for food"));
    EXPECT_FALSE(sheetShown());
    EXPECT_EQ(tabs()->viewControllers()[0]->topViewController()->title(), "Search Food");
}

TEST_P(Dashboard, LogStepsThroughTheDays) {
    launch();
    ASSERT_TRUE(app->click("Log"));
    EXPECT_NE(app->findByName(QString::fromStdString(AppState::shared().shownDate)), nullptr);
    app->saveScreenshot(idiom() + "-log");

    ASSERT_TRUE(app->click("Previous day"));
    ASSERT_TRUE(app->click("Previous day"));
    const QString dayOne = QString::fromStdString(AppState::shared().dailyRows[1][1]);
    EXPECT_NE(app->findByName(dayOne), nullptr);
    EXPECT_NE(app->findByName("2240 Cal"), nullptr);
    EXPECT_NE(app->findByName("-390"), nullptr);
    app->saveScreenshot(idiom() + "-log-day-1");

    ASSERT_TRUE(app->press("Next day"));
    EXPECT_EQ(AppState::shared().dayIndex, 2);
    EXPECT_NE(app->findByName("1980 Cal"), nullptr);
}

TEST_P(Dashboard, ADayUpdateShowsTheOverlayAndTodayDismissesIt) {
    launch();
    AppState& state = AppState::shared();
    CalorieStore& store = app->delegate().store();
    ASSERT_TRUE(app->click("Log"));
    store.UpdateDatabase1("calorieConsumed", "1500", static_cast<int32_t>(state.dayIndex));
    store.readDataFromDatabaseMainTable();
    EXPECT_TRUE(StatusOverlay::shared().isShown());
    app->settle();
    EXPECT_NE(app->findByName("In progress"), nullptr);
    app->saveScreenshot(idiom() + "-overlay");

    ASSERT_TRUE(app->click("Today"));  // the overlay lets touches through
    EXPECT_TRUE(settledHidden());
    EXPECT_NE(app->findByName("1500 Cal"), nullptr);

    // Without interaction a tap anywhere is swallowed while the box is up.
    StatusOverlay::show("Saving", false);
    app->settle();
    EXPECT_NE(app->findByName("Saving"), nullptr);
    app->click("Log");
    EXPECT_EQ(tabs()->selectedIndex(), 0);
    StatusOverlay::dismiss();
    EXPECT_TRUE(settledHidden());
}

INSTANTIATE_TEST_SUITE_P(Idioms, Dashboard, testing::Values(false, true),
                         [](const auto& info) { return info.param ? "Pad" : "Phone"; });

// A 480-point-high phone scrolls Today's page (320 by 500) to reach what lies under the tabs.
TEST(DashboardSmallPhone, TodayScrollsOnA480PointScreen) {
    HarnessOptions options;
    options.firstTime = QString("no");
    options.screen = QSize(320, 480);
    AppHarness app(options);
    app.launch();
    auto* today = qobject_cast<TodayScreen*>(
        AppState::shared().tabBarController->viewControllers()[0]->topViewController());
    EXPECT_EQ(today->mainScroll()->contentSize(), QSizeF(320, 500));
    app.saveScreenshot("phone-today-480");
    app.drag(QPointF(160, 400), -200);
    app.saveScreenshot("phone-today-480-scrolled");
    QQuickItem* button = app.findByName("Add exercise");
    ASSERT_NE(button, nullptr);
    EXPECT_LE(button->mapToScene(QPointF(0, button->height())).y(), 480 - 49);

    // The Log tab does not scroll: its figures fit above the tabs as they are.
    ASSERT_TRUE(app.click("Log"));
    app.saveScreenshot("phone-log-480");
    QQuickItem* burned = app.findByName("0 Cal", 1);
    ASSERT_NE(burned, nullptr);
    EXPECT_LE(burned->mapToScene(QPointF(0, burned->height())).y(), 480 - 49);
}
