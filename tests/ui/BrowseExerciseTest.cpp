// The duration screen in the real window, reached from Today and used by name as a person or a
// screen reader would: the wheels turned by dragging, Done pressed, Today showing what it booked.
#include <gtest/gtest.h>

#include <QQuickItem>
#include <QTest>

#include "exercise/DurationScreens.h"
#include "support/AppHarness.h"

namespace {

// Two days into a 1850-calorie plan (today is day 2), with 1240 eaten today.
class BrowseExercise : public testing::TestWithParam<bool> {
protected:
    void SetUp() override {
        const std::string db = app.prepareDatabase();
        writePlan(db, Clock::now() - std::chrono::hours(49), "1850", 366);
        execSql(db, "UPDATE dailyData SET calorieConsumed = 1240 WHERE id = 2");
        app.launch();
    }
    QString idiom() const { return GetParam() ? "pad" : "phone"; }
    int selected(BrowseExerciseScreen* screen, int wheel) {
        return screen->selectPicker()->selectedRowInComponent(wheel);
    }

    AppHarness app{{.pad = GetParam(), .firstTime = QString("no")}};
};

}  // namespace

TEST_P(BrowseExercise, FromTodayTheWheelsBookAndDoneShowsItOnToday) {
    BrowseExerciseScreen* screen = pushDuration(0, "Boxing, in ring", "844", true);
    app.settle();
    for (const char* shown : {"Add Exercise", "Cancel", "Done", "Boxing, in ring", "844",
                              "844 Cal per hour", "Hours", "Minutes"})
        EXPECT_NE(app.findByName(shown), nullptr) << shown;
    // The wheels stand where code put them: one hour, no minutes.
    EXPECT_EQ(app.findByName("Hours")->property("currentIndex").toInt(), 1);
    EXPECT_EQ(app.findByName("Minutes")->property("currentIndex").toInt(), 0);

    // Each wheel that comes to rest books the total it then shows, on top of what went before.
    ASSERT_TRUE(app.turn("Hours", 1));
    const int hours = selected(screen, 0);
    ASSERT_NE(hours, 1);
    ASSERT_TRUE(app.turn("Minutes", 3));
    const int minutes = selected(screen, 2);
    ASSERT_NE(minutes, 0);
    const int total = hours * 844 + minutes * 14;
    EXPECT_NE(app.findByName(QString::number(total)), nullptr);
    const int booked = hours * 844 + total;
    EXPECT_EQ(AppState::shared().burnedValue, booked);
    app.saveScreenshot(idiom() + "-exercise-duration");

    ASSERT_TRUE(app.press("Done"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return tab(0)->viewControllers().size() == 1; }, 5000));
    app.settle();
    EXPECT_NE(app.findByName(QString("%1 Cal").arg(booked)), nullptr);
    EXPECT_NE(app.findByName(QString("%1 Cal").arg(1240 - booked)), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Idioms, BrowseExercise, testing::Values(false, true),
                         [](const auto& info) { return info.param ? "Pad" : "Phone"; });
