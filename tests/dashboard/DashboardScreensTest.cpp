// The Today and Log screens driven through their outlets and actions in the running app. The
// dashboard walk (tests/ui) reads their figures by name and opens the menus with the mouse.
#include <gtest/gtest.h>

#include "dashboard/LogScreen.h"
#include "dashboard/TodayScreen.h"
#include "store/AppState.h"
#include "support/AppHarness.h"
#include "ui/TabBarController.h"

namespace {

// Two days into a 1850-calorie plan (today is day 2); day i has 100 * (i + 1) eaten, 10 * i burned.
class Dashboard : public testing::Test {
protected:
    void SetUp() override {
        const std::string db = app.prepareDatabase();
        writePlan(db, utc("2026-03-03 09:00:00"), "1850", 366);
        execSql(db, "UPDATE dailyData SET calorieConsumed = 100 * (id + 1), "
                    "calorieBurned = 10 * id");
        app.launch();
    }
    static TabBarController* tabs() { return AppState::shared().tabBarController; }
    static TodayScreen* today() { return qobject_cast<TodayScreen*>(tab(0)->viewControllers()[0]); }
    static LogScreen* log() { return qobject_cast<LogScreen*>(tab(3)->topViewController()); }
    // Calories left, eaten and burned.
    static QStringList shown(DashboardScreen* s) {
        return {s->todayLable()->text(), s->detailCalorie()->text(), s->detailExercise()->text()};
    }

    FixedClock clock{utc("2026-03-05 10:00:00")};
    AppHarness app{{.firstTime = QString("no")}};
};

}  // namespace

// Today's row whatever day the Log tab has chosen, drawn anew on every appearance: the bar
// replaced, a budget line and its two labels added (the gauge's arithmetic is GaugeTest's).
TEST_F(Dashboard, TodayDrawsTodaysRowAgainstTheBudgetOnEveryAppearance) {
    const QList<QObject*>& drawn = today()->mainScroll()->subviews();
    ASSERT_EQ(drawn.size(), 4);
    EXPECT_NEAR(qobject_cast<ShapeLayer*>(drawn[1])->from().x(), 197.333, 0.001);

    // More eaten than the budget goes negative, and past the top mark the bar runs off the edge;
    // burning leaves calories left alone; a value past 32 bits is cut to them.
    AppState& state = AppState::shared();
    state.dayIndex = 0;
    state.dailyRows[2][2] = "4500";
    state.dailyRows[2][3] = "900 kcal";
    today()->beginAppearance(true, false);
    EXPECT_EQ(shown(today()), (QStringList{"-2650", "4500 Cal", "900 Cal"}));
    EXPECT_EQ(today()->shapeLayer()->to().x(), 480);
    state.dailyRows[2][2] = "4294967396";  // 2^32 + 100
    today()->beginAppearance(true, false);
    EXPECT_EQ(shown(today()), (QStringList{"1750", "100 Cal", "900 Cal"}));
    EXPECT_EQ(today()->mainScroll()->subviews().size(), 1 + 3 * 3);
}

// The add menu's first choice opens the food menu. In the food and exercise menus a choice pushes
// its screen and tells a custom entry which kind it books; cancel stays on Today.
TEST_F(Dashboard, TodaysMenusLeadToTheEntryScreens) {
    today()->AddButton();
    today()->actiondoor()->clickButtonAtIndex(0);
    EXPECT_EQ(today()->actiondoor()->tag(), 102);  // the food menu's
    // Menu, button, screen pushed, and the kind after, set before to the custom entry's opposite.
    AppState& state = AppState::shared();
    for (const auto& [exerciseMenu, index, screenClass, exerciseAfter] :
         {std::tuple{false, 0, "SearchFoodScreen", true}, {false, 1, "CustomEntryScreen", false},
          {false, 2, "TodayScreen", true}, {true, 0, "ExerciseScreen", false},
          {true, 1, "CustomEntryScreen", true}, {true, 2, "TodayScreen", false}}) {
        state.customEntryIsExercise = !exerciseMenu;
        exerciseMenu ? today()->addExcercise() : today()->addFood();
        today()->actiondoor()->clickButtonAtIndex(index);
        EXPECT_STREQ(tab(0)->topViewController()->metaObject()->className(), screenClass);
        EXPECT_EQ(state.customEntryIsExercise, exerciseAfter) << exerciseMenu << index;
        tab(0)->popToRootViewController(false);
    }
}

// Each step loads its day's row and redraws; on today "next" and on day 0 "back" stay, but still
// redraw. Back on today the date is today's, not the row's label.
TEST_F(Dashboard, LogStepsBetweenTheFirstDayAndTodayAndAnAppearanceShowsTheSharedValues) {
    AppState& state = AppState::shared();
    tabs()->setSelectedIndex(3);
    const auto day = [&] { return QStringList{log()->dateLbl()->text()} + shown(log()); };
    EXPECT_EQ(day(), (QStringList{"Today, March 5", "1550", "300 Cal", "20 Cal"}));
    log()->nextBtn();
    log()->backBtn();
    log()->backBtn();
    log()->backBtn();
    const QString firstDay = QString::fromStdString(state.dailyRows[0][1]);
    EXPECT_EQ(day(), (QStringList{firstDay, "1750", "100 Cal", "0 Cal"}));
    log()->nextBtn();
    log()->nextBtn();
    EXPECT_EQ(day(), (QStringList{"Today, March 5", "1550", "300 Cal", "20 Cal"}));

    // Stepping only replaced the bar; an appearance shows the shared values, reading no row, and
    // adds a budget line and label pair.
    tabs()->setSelectedIndex(4);
    state.consumedValue = 1900;
    state.burnedValue = 75;
    tabs()->setSelectedIndex(3);
    EXPECT_EQ(shown(log()), (QStringList{"-50", "1900 Cal", "75 Cal"}));
    EXPECT_EQ(log()->view()->subviews().size(), 1 + 2 * 3);
}

// More days have passed than the plan has rows: Today's appearance ends the program saying so,
// rather than reading past the rows.
TEST_F(Dashboard, AMissingDayEndsTheProgramWithAMessage) {
    AppState::shared().todayIndex = 366;
    EXPECT_DEATH(today()->beginAppearance(true, false),
                 "has no day record for today \\(day 367 of a 366-day plan\\)");
}
