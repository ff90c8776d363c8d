// Booking an activity the way a person does it in the real window, drawn offscreen: from Today's
// add menu, a letter pressed on the index bar, an activity picked, the wheels turned, "Done";
// the same list as the Exercise tab searches and only calculates. Screenshots of what they see
// land in the build folder's screenshots/.
#include <gtest/gtest.h>

#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <cmath>

#include "exercise/DurationScreens.h"
#include "exercise/ExerciseScreen.h"
#include "support/AppHarness.h"

namespace {

class Exercise : public testing::TestWithParam<bool> {
protected:
    // Two days into a 1850-calorie plan (today is day 2), with 1240 eaten today.
    void SetUp() override {
        const std::string db = app.prepareDatabase();
        writePlan(db, Clock::now() - std::chrono::hours(49), "1850", 366);
        execSql(db, "UPDATE dailyData SET calorieConsumed = 1240 WHERE id = 2");
        app.launch();
    }
    QString idiom() const { return GetParam() ? "pad" : "phone"; }

    // Touches letter n (0 is "#") of the index bar on screen with the mouse; the bar's top.
    qreal touchLetter(int n) {
        QQuickItem* bar = app.findByName("Section index");
        if (!bar) return -1;
        const qreal cell = bar->height() / 27;
        QTest::mouseClick(app.quickWindow(), Qt::LeftButton, Qt::NoModifier,
                          bar->mapToScene(QPointF(bar->width() / 2, (n + 0.5) * cell)).toPoint());
        return bar->mapToScene(QPointF(0, 0)).y();
    }
    // Whether the named row stands right under its section's header at the top of the list.
    bool firstUnderHeader(const QString& row, qreal listTop) {
        return QTest::qWaitFor([&] {
            QQuickItem* item = app.findByName(row);
            return item && std::abs(item->mapToScene({0, 0}).y() - (listTop + 22)) < 1;
        }, 5000);
    }

    AppHarness app{{.pad = GetParam(), .firstTime = QString("no")}};
};

}  // namespace

TEST_P(Exercise, FromTodayALetterAnActivityAndTheWheelsAreBooked) {
    ASSERT_TRUE(app.click("Add exercise"));
    ASSERT_TRUE(app.click("Browse exercises"));
    ASSERT_NE(qobject_cast<ExerciseScreen*>(tab(0)->topViewController()), nullptr);
    ASSERT_NE(app.findByName("Aerobics, low impact"), nullptr);

    // "Q" has no section: the list glides to P, and the touched letter flashes.
    const qreal listTop = touchLetter(17);
    ASSERT_TRUE(firstUnderHeader("Paddleball, competitive", listTop));
    app.saveScreenshot(idiom() + "-exercise-index-flash");

    ASSERT_TRUE(app.click("Paddle boat"));
    auto* duration = qobject_cast<BrowseExerciseScreen*>(tab(0)->topViewController());
    ASSERT_NE(duration, nullptr);
    for (const char* shown : {"Add Exercise", "Cancel", "Paddle boat", "281", "281 Cal per hour"})
        EXPECT_NE(app.findByName(shown), nullptr) << shown;
    // The wheels stand where code put them: one hour, no minutes.
    EXPECT_EQ(app.findByName("Hours")->property("currentIndex").toInt(), 1);
    EXPECT_EQ(app.findByName("Minutes")->property("currentIndex").toInt(), 0);
    ASSERT_TRUE(app.turn("Hours", 1));
    const int64_t hours = duration->selectPicker()->selectedRowInComponent(0);
    ASSERT_TRUE(app.turn("Minutes", 3));
    const int64_t total = hours * 281 + duration->selectPicker()->selectedRowInComponent(2) * 4;
    EXPECT_EQ(duration->calorieAmt()->text(), QString::number(total));
    app.saveScreenshot(idiom() + "-exercise-duration");
    const int64_t booked = hours * 281 + total;  // each settled wheel booked what it showed then

    ASSERT_TRUE(app.click("Done"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return tab(0)->viewControllers().size() == 1; }, 5000));
    app.settle();
    EXPECT_NE(app.findByName(QString("%1 Cal").arg(booked)), nullptr);
    EXPECT_NE(app.findByName(QString("%1 Cal").arg(1240 - booked)), nullptr);
    EXPECT_EQ(dayInFile(app.databasePath(), 2), std::to_string(1240 - booked) + " " + std::to_string(booked));
}

// Typed into the search field and chosen with the mouse; back again, the results are still
// there until Cancel brings the sections and the index bar back.
TEST_P(Exercise, SearchedFromTheExerciseTabOnlyCalculates) {
    ASSERT_TRUE(app.click("Exercise"));
    ASSERT_NE(app.findByName("Section index"), nullptr);
    for (const char* shown : {"Exercise", "A", "Aerobics, low impact", "B"})
        EXPECT_NE(app.findByName(shown), nullptr) << shown;
    app.saveScreenshot(idiom() + "-exercise-list");

    ASSERT_TRUE(app.click("Search"));
    app.type("running");
    EXPECT_EQ(app.findByName("Section index"), nullptr);
    EXPECT_EQ(app.findByName("A"), nullptr);
    ASSERT_NE(app.findByName("Running, 6 mph (10 min mile)", 1), nullptr);
    ASSERT_NE(app.findByName("Running, stairs, up"), nullptr);
    app.key(Qt::Key_Return);  // the search button: the keyboard goes, the results stay
    EXPECT_FALSE(app.focused() && app.focused()->inherits("QQuickTextInput"));
    EXPECT_NE(app.findByName("Running, general"), nullptr);
    app.saveScreenshot(idiom() + "-exercise-search");

    ASSERT_TRUE(app.click("Running, stairs, up"));
    auto* duration = qobject_cast<BrowseExerciseScreen*>(tab(2)->topViewController());
    ASSERT_NE(duration, nullptr);
    EXPECT_EQ(duration->item1(), "563");  // the search's value; the list pairs it with 1056
    EXPECT_EQ(app.findByName("Done"), nullptr);
    ASSERT_TRUE(app.turn("Hours", 2));
    EXPECT_EQ(AppState::shared().burnedValue, 0);

    ASSERT_TRUE(app.click("‹ Back"));
    EXPECT_NE(app.findByName("Running, stairs, up"), nullptr);
    ASSERT_TRUE(app.click("Search"));
    ASSERT_TRUE(app.click("Cancel"));
    EXPECT_NE(app.findByName("Section index"), nullptr);
    EXPECT_NE(app.findByName("Aerobics, low impact"), nullptr);
    EXPECT_EQ(dayInFile(app.databasePath(), 2), "1240 0");

    // By keyboard: Tab to the bar, down to "S", Return.
    ASSERT_TRUE(app.tabTo("Section index"));
    app.key(Qt::Key_Down, 19);
    app.key(Qt::Key_Return);
    EXPECT_TRUE(firstUnderHeader("Sky diving", app.findByName("Section index")->mapToScene({0, 0}).y()));
}

INSTANTIATE_TEST_SUITE_P(Idioms, Exercise, testing::Values(false, true),
                         [](const auto& info) { return info.param ? "Pad" : "Phone"; });
