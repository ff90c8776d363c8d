// Booking an activity the way a person does it in the real window, drawn offscreen: the Exercise
// tab's list searched, and its index bar used by keyboard; then from Today's add menu, the index
// bar dragged by a finger, an activity picked, the wheels flicked by finger and mouse, "Done";
// then calories burned typed by hand.
#include <gtest/gtest.h>

#include <QQuickItem>
#include <QTest>
#include <cmath>

#include "exercise/DurationScreens.h"
#include "support/AppHarness.h"
#include "ui/Finger.h"

namespace {

class Exercise : public testing::TestWithParam<bool> {};

}  // namespace

TEST_P(Exercise, SearchedAndIndexedOnTheExerciseTabAndBookedFromToday) {
    const QString idiom = GetParam() ? "pad" : "phone";
    AppHarness app({.pad = GetParam(), .firstTime = QString("no")});
    // Two days into a 1850-calorie plan (today is day 2), with 1240 eaten today.
    const std::string db = app.prepareDatabase();
    writePlan(db, Clock::now() - std::chrono::hours(49), "1850", 366);
    execSql(db, "UPDATE dailyData SET calorieConsumed = 1240 WHERE id = 2");
    app.launch();
    // Whether the named row comes to stand right under its section's header atop the list.
    const auto firstUnderHeader = [&](const QString& row) {
        const qreal headerBottom = app.findByName("Section index")->mapToScene({0, 22}).y();
        return QTest::qWaitFor([&] {
            QQuickItem* item = app.findByName(row);
            return item && std::abs(item->mapToScene({0, 0}).y() - headerBottom) < 1;
        }, 5000);
    };

    ASSERT_TRUE(app.click("Exercise"));
    ASSERT_NE(app.findByName("A"), nullptr);
    app.saveScreenshot(idiom + "-exercise-list");

    // Typed into the search field; the keyboard's search key keeps the results.
    ASSERT_TRUE(app.click("Search"));
    app.type("running");
    app.key(Qt::Key_Return);  // the keyboard goes, the results stay
    EXPECT_FALSE(app.focused() && app.focused()->inherits("QQuickTextInput"));
    EXPECT_NE(app.findByName("Running, general"), nullptr);
    app.saveScreenshot(idiom + "-exercise-search");
    // Cancel brings the sections and the bar back.
    ASSERT_TRUE(app.click("Search") && app.click("Cancel"));
    // By keyboard: Tab to the bar, down to "S", Return.
    ASSERT_TRUE(app.tabTo("Section index"));
    app.key(Qt::Key_Down, 19);
    app.key(Qt::Key_Return);
    EXPECT_TRUE(firstUnderHeader("Sky diving"));

    // Down on C, and along to Q with the finger still down (no section: P, the letter flashing)
    // while drifting off the bar over the list, which must not take the drag over.
    ASSERT_TRUE(app.click("Today") && app.click("Add exercise") && app.click("Browse exercises"));
    QQuickItem* bar = app.findByName("Section index");
    ASSERT_NE(bar, nullptr);
    const auto letter = [&](int n) {  // "#" is letter 0
        return bar->mapToScene({bar->width() / 2, (n + 0.5) * bar->height() / 27});
    };
    Finger finger(app);
    finger.down(letter(3));
    EXPECT_TRUE(firstUnderHeader("Cleaning, dusting"));
    finger.moveTo(letter(17) - QPointF(80, 0), 10);
    ASSERT_TRUE(firstUnderHeader("Paddleball, competitive"));
    app.saveScreenshot(idiom + "-exercise-index-flash");
    finger.up();

    ASSERT_TRUE(app.click("Paddle boat"));
    auto* duration = qobject_cast<BrowseExerciseScreen*>(tab(0)->topViewController());
    ASSERT_NE(duration, nullptr);
    EXPECT_NE(app.findByName("281 Cal per hour"), nullptr);
    // The hours by a finger's flick, the minutes by the mouse's.
    QQuickItem* hoursWheel = app.findByName("Hours");
    ASSERT_NE(hoursWheel, nullptr);
    finger.down(centre(hoursWheel));
    finger.moveTo(centre(hoursWheel) - QPointF(0, hoursWheel->height() / 5));
    finger.up();
    ASSERT_TRUE(atRest(hoursWheel));
    const int64_t hours = duration->selectPicker()->selectedRowInComponent(0);
    ASSERT_TRUE(app.turn("Minutes", 3));
    const int64_t total = hours * 281 + duration->selectPicker()->selectedRowInComponent(2) * 4;
    EXPECT_EQ(duration->calorieAmt()->text(), QString::number(total));
    app.saveScreenshot(idiom + "-exercise-duration");
    const int32_t booked = int32_t(hours * 281 + total);  // each settled wheel, what it showed

    ASSERT_TRUE(app.click("Done"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return tab(0)->viewControllers().size() == 1; }, 5000));
    app.settle();
    EXPECT_NE(app.findByName(QString("%1 Cal").arg(booked)), nullptr);
    EXPECT_EQ(dayInFile(db, 2), std::to_string(1240 - booked) + " " + std::to_string(booked));

    // Calories burned typed by hand: added to burned, taken off eaten.
    ASSERT_TRUE(app.click("Add exercise") && app.click("Custom exercise"));
    app.type("300");
    app.saveScreenshot(idiom + "-custom-exercise");
    ASSERT_TRUE(app.click("Done"));
    ASSERT_TRUE(overlayGone());
    EXPECT_EQ(dayInFile(db, 2),
              std::to_string(1240 - 300 - booked) + " " + std::to_string(booked + 300));
}

INSTANTIATE_TEST_SUITE_P(Idioms, Exercise, testing::Values(false, true),
                         [](const auto& info) { return info.param ? "Pad" : "Phone"; });
