// The Log screen stepping through the plan's days in the running app.
#include <gtest/gtest.h>

#include "dashboard/LogScreen.h"
#include "store/AppState.h"
#include "store/CalorieStore.h"
#include "support/AppHarness.h"
#include "ui/TabBarController.h"

namespace {

// Two days into the plan (today is day 2); day i has 100 * (i + 1) calories eaten and 10 * i
// burned. The Log tab is selected, so it has loaded and appeared once.
class Log : public testing::Test {
protected:
    void SetUp() override {
        const std::string db = app.prepareDatabase();
        writePlan(db, Clock::now() - std::chrono::hours(49), "1850", 366);
        execSql(db, "UPDATE dailyData SET calorieConsumed = 100 * (id + 1), calorieBurned = id * 10");
        app.launch();
        ASSERT_EQ(AppState::shared().todayIndex, 2);
        tabs()->setSelectedIndex(3);
    }
    TabBarController* tabs() { return AppState::shared().tabBarController; }
    LogScreen* screen() {
        return qobject_cast<LogScreen*>(tabs()->viewControllers()[3]->topViewController());
    }
    // The date, eaten, burned and calories left.
    QStringList shown() {
        LogScreen* s = screen();
        return {s->dateLbl()->text(), s->detailCalorie()->text(), s->detailExercise()->text(),
                s->todayLable()->text()};
    }
    QString label(int day) { return QString::fromStdString(AppState::shared().dailyRows[day][1]); }

    AppHarness app{{.firstTime = QString("no")}};
};

}  // namespace

TEST_F(Log, StepsBetweenTheFirstDayAndTodayAndBooksOnTheDayShown) {
    AppState& state = AppState::shared();
    const QString today = QString::fromStdString(state.shownDate);
    EXPECT_EQ(shown(), (QStringList{today, "300 Cal", "20 Cal", "1550"}));
    EXPECT_EQ(screen()->shapeLayer()->from().y(), 179);  // its own place, not Today's
    {
        // On today "next" stays, but still redraws and logs the count.
        LogCapture log;
        const ShapeLayer* bar = screen()->shapeLayer();
        screen()->nextBtn();
        EXPECT_EQ(state.dayIndex, 2);
        EXPECT_NE(screen()->shapeLayer(), bar);
        EXPECT_EQ(log.lines(), std::vector<std::string>{"count 2"});
    }
    screen()->backBtn();
    EXPECT_EQ(shown(), (QStringList{label(1), "200 Cal", "10 Cal", "1650"}));
    screen()->backBtn();
    {
        // On day 0 "back" stays after logging the step it refused.
        LogCapture log;
        screen()->backBtn();
        EXPECT_EQ(state.dayIndex, 0);
        EXPECT_EQ(log.lines(), (std::vector<std::string>{"2 -1", "count 0"}));
        EXPECT_EQ(shown(), (QStringList{label(0), "100 Cal", "0 Cal", "1750"}));
    }

    // Booked from the Food tab, as an entry screen books: on the day shown here, not today.
    tabs()->setSelectedIndex(1);
    const std::string total = std::to_string(state.consumedValue + 450);
    app.delegate().store().UpdateDatabase1("calorieConsumed", total, int32_t(state.dayIndex));
    EXPECT_EQ(queryColumn(app.databasePath(),
                          "SELECT calorieConsumed FROM dailyData WHERE id BETWEEN 0 AND 2"),
              (std::vector<std::string>{"550", "200", "300"}));
    tabs()->setSelectedIndex(3);
    screen()->nextBtn();
    screen()->nextBtn();
    EXPECT_EQ(shown(), (QStringList{today, "300 Cal", "20 Cal", "1550"}));  // not the row's label

    // Stepping only replaced the bar; each appearance shows the shared day values as they stand,
    // without reading the rows, and adds one more budget line and label pair.
    EXPECT_EQ(screen()->view()->subviews().size(), 1 + 2 * 3);
    tabs()->setSelectedIndex(4);
    state.consumedValue = 1900;
    state.burnedValue = 75;
    tabs()->setSelectedIndex(3);
    EXPECT_EQ(shown().mid(1), (QStringList{"1900 Cal", "75 Cal", "-50"}));
    EXPECT_EQ(screen()->view()->subviews().size(), 1 + 3 * 3);
}

TEST_F(Log, SteppingOntoAMissingDayEndsTheProgramWithAMessage) {
    AppState& state = AppState::shared();
    state.dailyRows.resize(3);  // more days have passed than the plan has rows
    state.todayIndex = 3;
    EXPECT_DEATH(screen()->nextBtn(), "has no day record for today \\(day 4 of a 3-day plan\\)");
}
