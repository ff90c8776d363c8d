// The Today, Log and More tabs and the status overlay in the real window, used by name as a person
// or a screen reader would, on a plan with calories booked; and the pile of budget lines.
#include <gtest/gtest.h>

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <memory>
#include <sqlite3.h>

#include "app/tabs/MoreScreen.h"
#include "overlay/StatusOverlay.h"
#include "store/AppState.h"
#include "store/CalorieStore.h"
#include "support/AppHarness.h"
#include "ui/Label.h"
#include "ui/ShapeLayer.h"
#include "ui/TabBarController.h"

namespace {

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

TEST_P(Dashboard, TodayShowsTheGaugeAndOpensTheFoodMenu) {
    for (const char* shown : {"610", "1240 Cal", "220 Cal", "Calories left", "1000", "1500",
                              "2000", "3000", "Budget", "1850"})
        EXPECT_NE(app.findByName(shown), nullptr) << shown;
    app.saveScreenshot(idiom() + "-today");

    ASSERT_TRUE(app.click("Add food"));
    app.saveScreenshot(idiom() + "-today-food-menu");
    ASSERT_TRUE(app.click("Search for food"));
    EXPECT_EQ(tab(0)->topViewController()->title(), "Search Food");
}

// More, reached by a click, fits all it holds in its scroll area's fixed content height; Log,
// pressed by the action a screen reader uses, steps back through the days.
TEST_P(Dashboard, MoreFitsAndLogStepsThroughTheDays) {
    ASSERT_TRUE(app.click("More"));
    auto* more = qobject_cast<MoreScreen*>(tab(4)->topViewController());
    ASSERT_NE(more, nullptr);
    QQuickItem* last = app.findByName(more->lb2()->text());
    ASSERT_NE(last, nullptr);
    EXPECT_LE(last->y() + last->height(), more->mainscrol()->contentSize().height());
    app.saveScreenshot(idiom() + "-more");

    ASSERT_TRUE(app.press("Log"));
    EXPECT_NE(app.findByName(QString::fromStdString(AppState::shared().shownDate)), nullptr);
    ASSERT_TRUE(app.click("Previous day") && app.click("Previous day"));
    EXPECT_NE(app.findByName(QString::fromStdString(AppState::shared().dailyRows[1][1])), nullptr);
    EXPECT_NE(app.findByName("-390"), nullptr);
    app.saveScreenshot(idiom() + "-log-day-1");
}

// The store shows the overlay on every day update. It lets touches through to the tabs, unless
// shown without interaction: then a tap anywhere is swallowed while the box is up.
TEST_P(Dashboard, ADayUpdateShowsTheOverlayAndTodayDismissesIt) {
    CalorieStore& store = app.delegate().store();
    ASSERT_TRUE(app.click("Log"));
    store.UpdateDatabase1("calorieConsumed", "1500", 3);  // today
    store.readDataFromDatabaseMainTable();
    app.settle();
    EXPECT_NE(app.findByName("In progress"), nullptr);
    app.saveScreenshot(idiom() + "-overlay");
    ASSERT_TRUE(app.click("Today"));
    EXPECT_TRUE(overlayGone());
    EXPECT_NE(app.findByName("1500 Cal"), nullptr);

    StatusOverlay::show("Saving", false);
    app.settle();
    app.click("Log");
    EXPECT_EQ(AppState::shared().tabBarController->selectedIndex(), 0);
    StatusOverlay::dismiss();
    EXPECT_TRUE(overlayGone());
}

// A day of switching tabs piles a budget line and label pair up on every appearance of either
// view; all but the newest few are drawn as one picture, which a screen reader does not read.
TEST_P(Dashboard, AppearancesPileUpBudgetLinesThatReadOnce) {
    for (int i = 0; i < 60; ++i) {  // Log, Today, Log, ...
        AppState::shared().tabBarController->setSelectedIndex(i % 2 ? 0 : 3);
        app.settle(10);
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return !app.findByName("Budget", 8); }, 10000));
    EXPECT_NE(app.findByName("Budget"), nullptr);
    ASSERT_TRUE(app.click("Log"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !app.findByName("Budget", 8); }, 10000));
}

// The pile Today and Log build up is drawn as it always was once its oldest renderers have been
// flattened into a picture, and anew when code takes away a view already in it: rendered twice
// side by side, flattened and all live, over a background that shows any pixel out of place.
TEST(Subviews, AFlattenedPileLooksLikeTheLiveOne) {
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData(R"(
        import QtQuick
        import CalorieCounter.Kit
        Window {
            id: window
            property View view
            property alias flattened: flattened
            property alias live: live
            width: 400; height: 120; visible: true
            Rectangle {
                anchors.fill: parent
                gradient: Gradient { GradientStop { color: "#F7F5F2" } GradientStop { position: 1; color: "#3050A0" } }
            }
            KitSubviews { id: flattened; view: window.view }
            Item { x: 200; KitSubviews { id: live; view: window.view; flattenAbove: 1e9 } }
        })",
                      QUrl("qrc:/tests/Pile.qml"));
    std::unique_ptr<QObject> created(component.create());
    ASSERT_TRUE(created) << component.errorString().toStdString();
    auto* window = qobject_cast<QQuickWindow*>(created.get());
    View view;
    window->setProperty("view", QVariant::fromValue(&view));
    auto* flattened = window->property("flattened").value<QQuickItem*>();
    auto* live = window->property("live").value<QQuickItem*>();

    View* bar = nullptr;
    QList<View*> piled;
    const auto shape = [&](QPointF from, QPointF to, QColor colour, qreal width) {
        auto* s = new ShapeLayer;
        s->setLine(from, to);
        s->setStrokeColor(colour);
        s->setLineWidth(width);
        view.addSubview(s);
        return s;
    };
    const auto label = [&](qreal x, const QString& text) {
        auto* l = new Label;
        l->setFrame(QRectF(x, 49, 57, 17));
        l->setText(text);
        view.addSubview(l);
        return l;
    };
    const auto shapes = [&](int rounds) {
        for (int i = 0; i < rounds; ++i) {
            if (bar) view.removeSubview(bar);
            bar = shape(QPointF(0, 36), QPointF(130.6 + i % 3, 36), QColor(46, 139, 87), 38);
            piled << shape(QPointF(97.33, 14), QPointF(97.33, 63), QColor(218, 165, 32), 2)
                  << label(58.33, "Budget") << label(102.33, "1850");
        }
    };
    const auto flattenedSettles = [&] {
        return QTest::qWaitFor([&] {
            const QImage shot = window->grabWindow();
            return flattened->childItems().size() < 40 &&
                   shot.copy(0, 0, 200, 120) == shot.copy(200, 0, 200, 120);
        }, 20000);
    };

    shapes(40);
    EXPECT_TRUE(flattenedSettles());
    EXPECT_GT(live->childItems().size(), 120);

    view.removeSubview(piled[7]);
    shapes(3);
    EXPECT_TRUE(flattenedSettles());
}

INSTANTIATE_TEST_SUITE_P(Idioms, Dashboard, testing::Values(false, true),
                         [](const auto& info) { return info.param ? "Pad" : "Phone"; });

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
