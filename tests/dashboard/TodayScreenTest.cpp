// The Today screen driven through its outlets and actions in the running app. The dashboard walk
// (tests/ui) reads its figures and marks by name and opens its menus with the mouse.
#include <gtest/gtest.h>

#include "dashboard/TodayScreen.h"
#include "store/AppState.h"
#include "support/AppHarness.h"

namespace {

// Two days into a 1850-calorie plan (today is day 2), with 1240 eaten and 220 burned today.
class Today : public testing::Test {
protected:
    void SetUp() override {
        const std::string db = app.prepareDatabase();
        writePlan(db, utc("2026-03-03 09:00:00"), "1850", 366);
        execSql(db,
                "UPDATE dailyData SET calorieConsumed = 1240, calorieBurned = 220 WHERE id = 2");
        app.launch();
        ASSERT_EQ(AppState::shared().todayIndex, 2);
    }
    static TodayScreen* screen() {
        return qobject_cast<TodayScreen*>(tab(0)->viewControllers()[0]);
    }
    static void appearAgain() { screen()->beginAppearance(true, false); }
    // Calories left, eaten and burned.
    static QStringList shown() {
        return {screen()->todayLable()->text(), screen()->detailCalorie()->text(),
                screen()->detailExercise()->text()};
    }

    FixedClock clock{utc("2026-03-05 10:00:00")};
    AppHarness app{{.firstTime = QString("no")}};
};

}  // namespace

// Today's row whatever day the Log tab has chosen, drawn anew on every appearance: the bar, then
// the budget line and its two labels (the gauge's arithmetic is GaugeTest's).
TEST_F(Today, DrawsTodaysRowAgainstTheBudgetOnEveryAppearance) {
    EXPECT_EQ(screen()->dateLbl()->text(), "Today, March 5");
    const QList<QObject*>& drawn = screen()->mainScroll()->subviews();
    ASSERT_EQ(drawn.size(), 4);
    EXPECT_NEAR(qobject_cast<ShapeLayer*>(drawn[1])->from().x(), 197.333, 0.001);
    EXPECT_TRUE(screen()->mainScroll()->contentSize().isEmpty());  // scrolling as the layout has it

    // More eaten than the budget goes negative, and past the top mark the bar runs off the edge;
    // burning leaves calories left alone; a value past 32 bits is cut to them.
    AppState& state = AppState::shared();
    state.dayIndex = 0;
    state.dailyRows[2][2] = "4500";
    state.dailyRows[2][3] = "900 kcal";
    appearAgain();
    EXPECT_EQ(shown(), (QStringList{"-2650", "4500 Cal", "900 Cal"}));
    EXPECT_EQ(screen()->shapeLayer()->to().x(), 480);
    state.dailyRows[2][2] = "4294967396";  // 2^32 + 100
    appearAgain();
    EXPECT_EQ(shown(), (QStringList{"1750", "100 Cal", "900 Cal"}));
    // The bar is replaced; budget lines and their labels pile up, one set per appearance.
    EXPECT_EQ(screen()->mainScroll()->subviews().size(), 1 + 3 * 3);
}

// The add menu's first choice opens the food menu (its cancel and second choice are the walk's).
// There cancel closes, a choice pushes its screen and tells a custom entry which kind it books.
TEST_F(Today, OptionSheetsLeadToTheEntryScreens) {
    Window* window = app.window();
    screen()->AddButton();
    EXPECT_EQ(screen()->actiondoor()->tag(), 101);
    screen()->actiondoor()->clickButtonAtIndex(0);
    EXPECT_EQ(screen()->actiondoor()->tag(), 102);
    EXPECT_EQ(window->presented(), QList<QObject*>{screen()->actiondoor()});

    // Menu, button, screen pushed, and the kind after, set before to the custom entry's opposite.
    AppState& state = AppState::shared();
    for (const auto& [exerciseMenu, index, screenClass, exerciseAfter] :
         {std::tuple{false, 0, "SearchFoodScreen", true}, {false, 1, "CustomEntryScreen", false},
          {false, 2, "TodayScreen", true}, {true, 0, "ExerciseScreen", false},
          {true, 1, "CustomEntryScreen", true}, {true, 2, "TodayScreen", false}}) {
        state.customEntryIsExercise = !exerciseMenu;
        exerciseMenu ? screen()->addExcercise() : screen()->addFood();
        EXPECT_EQ(screen()->actiondoor()->tag(), exerciseMenu ? 103 : 102);
        screen()->actiondoor()->clickButtonAtIndex(index);
        EXPECT_TRUE(window->presented().isEmpty());
        EXPECT_STREQ(tab(0)->topViewController()->metaObject()->className(), screenClass);
        EXPECT_EQ(state.customEntryIsExercise, exerciseAfter) << exerciseMenu << index;
        tab(0)->popToRootViewController(false);
    }
}

TEST_F(Today, AnOutOfRangeTodayEndsTheProgramWithAMessage) {
    AppState::shared().todayIndex = 366;
    EXPECT_DEATH(appearAgain(), "has no day record for today \\(day 367 of a 366-day plan\\)");
}
