// The Today and Log tabs and the status overlay in the real window, used by name as a person or
// a screen reader would, on a plan with calories booked; screenshots of what they see.
#include <gtest/gtest.h>

#include <QQuickItem>
#include <QTest>
#include <sqlite3.h>

#include "dashboard/TodayScreen.h"
#include "overlay/StatusOverlay.h"
#include "store/AppState.h"
#include "store/CalorieStore.h"
#include "support/AppHarness.h"
#include "ui/TabBarController.h"

namespace {

bool settledHidden() {
    return QTest::qWaitFor([] { return !StatusOverlay::shared().isShown(); }, 3000);
}

// Three days into a 1850-calorie plan, with calories booked yesterday and today.
class Dashboard : public testing::TestWithParam<bool> {
protected:
    void SetUp() override {
        const std::string db = app.prepareDatabase();
        writePlan(db, Clock::now() - std::chrono::hours(73), "1850", 366);
        execSql(db,
                "UPDATE dailyData SET calorieConsumed = 2240 WHERE id = 1;"
                "UPDATE dailyData SET calorieConsumed = 1240, calorieBurned = 220 WHERE id = 3;");
        app.launch();
    }
    QString idiom() const { return GetParam() ? "pad" : "phone"; }

    AppHarness app{{.pad = GetParam(), .firstTime = QString("no")}};
};

}  // namespace

TEST_P(Dashboard, TodayShowsTheGaugeAndOpensTheAddMenus) {
    for (const char* shown : {"610", "1240 Cal", "220 Cal", "Calories left", "1000", "1500",
                              "2000", "3000", "Budget", "1850"})
        EXPECT_NE(app.findByName(shown), nullptr) << shown;
    const auto* today = qobject_cast<TodayScreen*>(tab(0)->topViewController());
    EXPECT_EQ(today->shapeLayer()->from().y(), GetParam() ? 200 : 117);
    app.saveScreenshot(idiom() + "-today");

    ASSERT_TRUE(app.click("Add"));
    ASSERT_TRUE(app.click("Cancel"));
    ASSERT_TRUE(app.click("Add Excercise"));  // the add menu came back
    ASSERT_TRUE(app.click("Custom exercise"));
    EXPECT_TRUE(AppState::shared().customEntryIsExercise);
    tab(0)->popViewController(false);
    ASSERT_TRUE(app.click("Add food"));
    app.saveScreenshot(idiom() + "-today-food-menu");
    ASSERT_TRUE(app.click("Search for food"));
    EXPECT_TRUE(app.window()->presented().isEmpty());
    EXPECT_EQ(tab(0)->topViewController()->title(), "Search Food");
}

TEST_P(Dashboard, LogStepsThroughTheDays) {
    ASSERT_TRUE(app.click("Log"));
    EXPECT_NE(app.findByName(QString::fromStdString(AppState::shared().shownDate)), nullptr);
    app.saveScreenshot(idiom() + "-log");

    ASSERT_TRUE(app.click("Previous day"));
    ASSERT_TRUE(app.click("Previous day"));
    EXPECT_NE(app.findByName(QString::fromStdString(AppState::shared().dailyRows[1][1])), nullptr);
    EXPECT_NE(app.findByName("-390"), nullptr);
    app.saveScreenshot(idiom() + "-log-day-1");

    ASSERT_TRUE(app.press("Next day"));
    EXPECT_EQ(AppState::shared().dayIndex, 2);
}

// The store shows the overlay on every day update; it sits upright in the middle of the window.
TEST_P(Dashboard, ADayUpdateShowsTheOverlayAndTodayDismissesIt) {
    CalorieStore& store = app.delegate().store();
    ASSERT_TRUE(app.click("Log"));
    store.UpdateDatabase1("calorieConsumed", "1500", 3);  // today
    store.readDataFromDatabaseMainTable();
    EXPECT_TRUE(StatusOverlay::shared().isShown());
    app.settle();
    EXPECT_NE(app.findByName("In progress"), nullptr);
    EXPECT_EQ(StatusOverlay::shared().centre(), GetParam() ? QPointF(384, 512) : QPointF(160, 284));
    EXPECT_EQ(StatusOverlay::shared().rotation(), 0);
    app.saveScreenshot(idiom() + "-overlay");

    ASSERT_TRUE(app.click("Today"));  // the overlay lets touches through
    EXPECT_TRUE(settledHidden());
    EXPECT_NE(app.findByName("1500 Cal"), nullptr);

    // Without interaction a tap anywhere is swallowed while the box is up.
    StatusOverlay::show("Saving", false);
    app.settle();
    EXPECT_NE(app.findByName("Saving"), nullptr);
    app.click("Log");
    EXPECT_EQ(AppState::shared().tabBarController->selectedIndex(), 0);
    StatusOverlay::dismiss();
    EXPECT_TRUE(settledHidden());
}

// A day of switching tabs piles a budget line and label pair up on every appearance of either
// view; all but the newest few are drawn as one picture, which a screen reader does not read.
TEST_P(Dashboard, AppearancesPileUpBudgetLinesThatReadOnce) {
    TabBarController* tabs = AppState::shared().tabBarController;
    for (int i = 0; i < 30; ++i) {
        tabs->setSelectedIndex(3);
        app.settle(10);
        tabs->setSelectedIndex(0);
        app.settle(10);
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return !app.findByName("Budget", 8); }, 10000));
    EXPECT_NE(app.findByName("Budget"), nullptr);
    app.saveScreenshot(idiom() + "-today-after-30");
    ASSERT_TRUE(app.click("Log"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !app.findByName("Budget", 8); }, 10000));
    app.saveScreenshot(idiom() + "-log-after-30");
}

INSTANTIATE_TEST_SUITE_P(Idioms, Dashboard, testing::Values(false, true),
                         [](const auto& info) { return info.param ? "Pad" : "Phone"; });

// A 480-point-high phone scrolls Today's page (320 by 500) to reach what lies under the tabs; the
// Log tab does not scroll, its figures fitting above the tabs as they are.
TEST(DashboardSmallPhone, TodayScrollsOnA480PointScreen) {
    AppHarness app({.firstTime = QString("no"), .screen = QSize(320, 480)});
    app.launch();
    auto* today = qobject_cast<TodayScreen*>(tab(0)->topViewController());
    EXPECT_EQ(today->mainScroll()->contentSize(), QSizeF(320, 500));
    app.saveScreenshot("phone-today-480");
    app.drag(QPointF(160, 400), -200);
    app.saveScreenshot("phone-today-480-scrolled");
    QQuickItem* button = app.findByName("Add exercise");
    ASSERT_NE(button, nullptr);
    EXPECT_LE(button->mapToScene(QPointF(0, button->height())).y(), 480 - 49);
    ASSERT_TRUE(app.click("Log"));
    app.saveScreenshot("phone-log-480");
    QQuickItem* burned = app.findByName("0 Cal", 1);
    ASSERT_NE(burned, nullptr);
    EXPECT_LE(burned->mapToScene(QPointF(0, burned->height())).y(), 480 - 49);
}

// Another program holds the file while a day is booked: the booking is said to be lost, the
// figures stay what the file holds, and the booking after the lock is gone is stored.
TEST(DashboardWriteFailure, ABookingTheFileDoesNotTakeIsShownAndTheNextIsStored) {
    AppHarness app({.firstTime = QString("no")});
    const std::string db = app.prepareDatabase();
    writePlan(db, Clock::now() - std::chrono::hours(3), "1850", 366);
    execSql(db, "UPDATE dailyData SET calorieConsumed = 400 WHERE id = 0");
    app.launch();
    CalorieStore& store = app.delegate().store();
    {
        sqlite3* other = nullptr;
        ASSERT_EQ(sqlite3_open(db.c_str(), &other), SQLITE_OK);
        ASSERT_EQ(sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
        store.UpdateDatabase1("calorieConsumed", "900", 0);
        store.readDataFromDatabaseMainTable();
        sqlite3_close(other);
    }
    app.settle();
    EXPECT_NE(app.findByName("Not saved: another program holds the file"), nullptr);
    EXPECT_EQ(dayInFile(db, 0), "400 0");
    ASSERT_TRUE(app.click("Today"));
    EXPECT_NE(app.findByName("400 Cal"), nullptr);

    store.UpdateDatabase1("calorieConsumed", "900", 0);
    store.readDataFromDatabaseMainTable();
    EXPECT_EQ(dayInFile(db, 0), "900 0");
}
