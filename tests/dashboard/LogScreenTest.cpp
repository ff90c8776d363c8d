// The Log screen stepping through the plan's days in the running app.
#include <gtest/gtest.h>

#include "dashboard/LogScreen.h"
#include "store/AppState.h"
#include "store/CalorieStore.h"
#include "support/AppHarness.h"
#include "ui/TabBarController.h"

namespace {

// Day i of the plan has 100 * (i + 1) calories eaten and 10 * i burned; the Log tab is
// selected, so it has loaded and appeared once.
class Log : public testing::Test {
protected:
    void launch(int daysAgo) {
        HarnessOptions options;
        options.firstTime = QString("no");
        app = std::make_unique<AppHarness>(options);
        const std::string db = app->prepareDatabase();
        writePlan(db, Clock::now() - std::chrono::hours(24 * daysAgo + 1), "1850", 366);
        execSql(db, "UPDATE dailyData SET calorieConsumed = 100 * (id + 1), calorieBurned = id * 10");
        app->launch();
        ASSERT_EQ(AppState::shared().todayIndex, daysAgo);
        tabs()->setSelectedIndex(3);
    }
    TabBarController* tabs() { return AppState::shared().tabBarController; }
    LogScreen* screen() { return qobject_cast<LogScreen*>(tabs()->viewControllers()[3]->topViewController()); }
    // The date, eaten, burned and calories left.
    QStringList shown() {
        LogScreen* s = screen();
        return {s->dateLbl()->text(), s->detailCalorie()->text(), s->detailExercise()->text(),
                s->todayLable()->text()};
    }
    QString label(int day) { return QString::fromStdString(AppState::shared().dailyRows[day][1]); }
    qsizetype drawnCount() { return screen()->view()->subviews().size(); }

    std::unique_ptr<AppHarness> app;
};

}  // namespace

TEST_F(Log, StepsBetweenTheFirstDayAndToday) {
    launch(2);
    const AppState& state = AppState::shared();
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
    EXPECT_NEAR(screen()->shapeLayer()->to().x(), 200 / screen()->f(), 0.001);
    screen()->backBtn();
    {
        // On day 0 "back" stays after logging the step it refused.
        LogCapture log;
        screen()->backBtn();
        EXPECT_EQ(state.dayIndex, 0);
        EXPECT_EQ(log.lines(), (std::vector<std::string>{"2 -1", "count 0"}));
        EXPECT_EQ(shown(), (QStringList{label(0), "100 Cal", "0 Cal", "1750"}));
    }
    screen()->nextBtn();
    screen()->nextBtn();
    EXPECT_EQ(shown(), (QStringList{today, "300 Cal", "20 Cal", "1550"}));  // not the row's label
}

TEST_F(Log, OnTheFirstDayOfThePlanNeitherButtonMoves) {
    launch(0);
    screen()->backBtn();
    screen()->nextBtn();
    EXPECT_EQ(AppState::shared().dayIndex, 0);
}

TEST_F(Log, AnEntryAfterSteppingBackIsBookedOnThatDay) {
    launch(3);
    AppState& state = AppState::shared();
    for (int i = 0; i < 3; ++i) screen()->backBtn();

    // From the Food tab, as an entry screen books: the day's new total, then the rows again.
    tabs()->setSelectedIndex(1);
    CalorieStore& store = app->delegate().store();
    store.UpdateDatabase1("calorieConsumed", std::to_string(state.consumedValue + 450),
                          static_cast<int32_t>(state.dayIndex));
    store.readDataFromDatabaseMainTable();
    EXPECT_EQ(queryColumn(app->databasePath(),
                          "SELECT calorieConsumed FROM dailyData WHERE id BETWEEN 0 AND 3"),
              (std::vector<std::string>{"550", "200", "300", "400"}));
    tabs()->setSelectedIndex(3);
    screen()->nextBtn();
    screen()->backBtn();
    EXPECT_EQ(shown()[1], "550 Cal");
}

// Appearing shows the shared day values as they stand, without reading the rows, and adds one
// more budget line and label pair each time; stepping only replaces the bar.
TEST_F(Log, AppearingRedrawsTheSharedDayAndAddsABudgetLine) {
    launch(2);
    EXPECT_EQ(drawnCount(), 1 + 3);
    tabs()->setSelectedIndex(4);
    AppState::shared().consumedValue = 1900;
    AppState::shared().burnedValue = 75;
    tabs()->setSelectedIndex(3);
    EXPECT_EQ(shown().mid(1), (QStringList{"1900 Cal", "75 Cal", "-50"}));
    EXPECT_EQ(drawnCount(), 1 + 2 * 3);
    screen()->backBtn();
    screen()->nextBtn();
    EXPECT_EQ(drawnCount(), 1 + 2 * 3);
}

TEST_F(Log, SteppingOntoAMissingDayEndsTheProgramWithAMessage) {
    launch(3);
    AppState& state = AppState::shared();
    state.dailyRows.resize(4);  // more days have passed than the plan has rows
    state.todayIndex = 4;
    EXPECT_DEATH(screen()->nextBtn(), "dailyRows has no position 4 \\(it holds 4\\)");
}
