// The Log screen stepping through the plan's days in the running app.
#include <gtest/gtest.h>

#include "dashboard/LogScreen.h"
#include "store/AppState.h"
#include "support/AppHarness.h"
#include "ui/TabBarController.h"

namespace {

// Today is day 2; day i has 100 * (i + 1) eaten and 10 * i burned. The Log tab has appeared once.
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
    static TabBarController* tabs() { return AppState::shared().tabBarController; }
    static LogScreen* screen() {
        return qobject_cast<LogScreen*>(tabs()->viewControllers()[3]->topViewController());
    }
    // The date, eaten, burned and calories left.
    static QStringList shown() {
        LogScreen* s = screen();
        return {s->dateLbl()->text(), s->detailCalorie()->text(), s->detailExercise()->text(),
                s->todayLable()->text()};
    }
    static QString label(int day) {
        return QString::fromStdString(AppState::shared().dailyRows[day][1]);
    }

    AppHarness app{{.firstTime = QString("no")}};
};

}  // namespace

// Each step loads its day's row and redraws, logging the count; on today "next" and on day 0
// "back" stay, but still redraw and log. Back on today the date is today's, not the row's label.
TEST_F(Log, StepsBetweenTheFirstDayAndTodayAndEachAppearanceShowsTheSharedValues) {
    AppState& state = AppState::shared();
    const QString today = QString::fromStdString(state.shownDate);
    EXPECT_EQ(shown(), (QStringList{today, "300 Cal", "20 Cal", "1550"}));
    EXPECT_EQ(screen()->shapeLayer()->from().y(), 179);  // its own place, not Today's
    const ShapeLayer* bar = screen()->shapeLayer();
    LogCapture log;
    screen()->nextBtn();
    EXPECT_EQ(state.dayIndex, 2);
    EXPECT_NE(screen()->shapeLayer(), bar);
    screen()->backBtn();
    EXPECT_EQ(shown(), (QStringList{label(1), "200 Cal", "10 Cal", "1650"}));
    screen()->backBtn();
    screen()->backBtn();
    EXPECT_EQ(state.dayIndex, 0);
    EXPECT_EQ(shown(), (QStringList{label(0), "100 Cal", "0 Cal", "1750"}));
    EXPECT_EQ(log.lines(), (std::vector<std::string>{"count 2", "2 1", "count 1", "2 0", "count 0",
                                                     "2 -1", "count 0"}));
    screen()->nextBtn();
    screen()->nextBtn();
    EXPECT_EQ(shown(), (QStringList{today, "300 Cal", "20 Cal", "1550"}));

    // Stepping only replaced the bar; an appearance shows the shared values, reading no row, and
    // adds a budget line and label pair.
    EXPECT_EQ(screen()->view()->subviews().size(), 1 + 1 * 3);
    tabs()->setSelectedIndex(4);
    state.consumedValue = 1900;
    state.burnedValue = 75;
    tabs()->setSelectedIndex(3);
    EXPECT_EQ(shown().mid(1), (QStringList{"1900 Cal", "75 Cal", "-50"}));
    EXPECT_EQ(screen()->view()->subviews().size(), 1 + 2 * 3);
}

TEST_F(Log, SteppingOntoAMissingDayEndsTheProgramWithAMessage) {
    AppState& state = AppState::shared();
    state.dailyRows.resize(3);  // more days have passed than the plan has rows
    state.todayIndex = 3;
    EXPECT_DEATH(screen()->nextBtn(), "has no day record for today \\(day 4 of a 3-day plan\\)");
}
