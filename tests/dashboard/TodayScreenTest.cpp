// The Today screen driven through its outlets and actions in the running app.
#include <gtest/gtest.h>

#include "dashboard/TodayScreen.h"
#include "store/AppState.h"
#include "support/AppHarness.h"
#include "ui/TabBarController.h"

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
    TodayScreen* screen() { return qobject_cast<TodayScreen*>(tab(0)->viewControllers()[0]); }
    void appearAgain() { screen()->beginAppearance(true, false); }
    // Calories left, eaten and burned, then the marks: mid, max1, max and top.
    QStringList shown() {
        TodayScreen* s = screen();
        return {s->todayLable()->text(),     s->detailCalorie()->text(),
                s->detailExercise()->text(), s->midValue()->text(),
                s->max1Value()->text(),      s->maxValue()->text(),
                s->ExtremeMaxValue()->text()};
    }
    // What code has drawn into the scroll area, of one kind, in drawing order.
    template <class Layer>
    QList<Layer*> drawn() {
        QList<Layer*> found;
        for (QObject* view : screen()->mainScroll()->subviews())
            if (auto* layer = qobject_cast<Layer*>(view)) found << layer;
        return found;
    }

    FixedClock clock{utc("2026-03-05 10:00:00")};
    AppHarness app{{.firstTime = QString("no")}};
};

}  // namespace

// The gauge's arithmetic is GaugeTest's; this shows the screen draws with it, from today's row
// whatever day the Log tab has chosen, anew on every appearance.
TEST_F(Today, DrawsTodaysRowAgainstTheBudgetOnEveryAppearance) {
    EXPECT_EQ(screen()->dateLbl()->text(), "Today, March 5");
    EXPECT_EQ(shown(), (QStringList{"610", "1240 Cal", "220 Cal", "1000", "1500", "2000", "3000"}));
    EXPECT_NEAR(drawn<ShapeLayer>().last()->from().x(), 197.333, 0.001);
    EXPECT_TRUE(screen()->mainScroll()->contentSize().isEmpty());  // scrolling as the layout has it
    const ShapeLayer* firstBar = screen()->shapeLayer();

    // More eaten than the budget goes negative, and past the top mark the bar runs off the edge;
    // burning leaves calories left alone; a value past 32 bits is cut to them.
    AppState& state = AppState::shared();
    state.dayIndex = 0;
    state.dailyRows[2][2] = "4500";
    state.dailyRows[2][3] = "900 kcal";
    appearAgain();
    EXPECT_EQ(shown().first(3), (QStringList{"-2650", "4500 Cal", "900 Cal"}));
    EXPECT_EQ(screen()->shapeLayer()->to().x(), 480);
    state.dailyRows[2][2] = "4294967396";  // 2^32 + 100
    appearAgain();
    EXPECT_EQ(shown().first(3), (QStringList{"1750", "100 Cal", "900 Cal"}));

    // The bar is replaced; budget lines and their labels pile up, one set per appearance.
    const QList<ShapeLayer*> layers = drawn<ShapeLayer>();
    EXPECT_FALSE(layers.contains(firstBar));
    EXPECT_EQ(layers.count(screen()->shapeLayer()), 1);
    EXPECT_EQ(layers.size(), 1 + 3);
    EXPECT_EQ(drawn<Label>().size(), 2 * 3);
}

// Cancelling the add menu brings it back, and its choices open the food and exercise menus (as
// the layout's buttons do). There cancel closes the menu, a choice pushes its screen, and a
// custom entry is told which kind it books.
TEST_F(Today, OptionSheetsLeadToTheEntryScreens) {
    Window* window = app.window();
    screen()->AddButton();
    ActionSheet* add = screen()->actiondoor();
    EXPECT_EQ(add->tag(), 101);
    add->clickButtonAtIndex(2);
    EXPECT_EQ(window->presented(), QList<QObject*>{add});
    add->clickButtonAtIndex(1);
    EXPECT_EQ(screen()->actiondoor()->tag(), 103);
    screen()->AddButton();
    screen()->actiondoor()->clickButtonAtIndex(0);
    EXPECT_EQ(screen()->actiondoor()->tag(), 102);

    struct Route {
        bool exerciseMenu;
        int index;
        const char* screenClass;
        bool exerciseAfter;  // before: the opposite of what the menu's custom entry sets
    };
    AppState& state = AppState::shared();
    for (const Route& r : {Route{false, 0, "SearchFoodScreen", true},
                           {false, 1, "CustomEntryScreen", false},
                           {false, 2, "TodayScreen", true},
                           {true, 0, "ExerciseScreen", false},
                           {true, 1, "CustomEntryScreen", true},
                           {true, 2, "TodayScreen", false}}) {
        SCOPED_TRACE(testing::Message() << r.exerciseMenu << " " << r.index);
        state.customEntryIsExercise = !r.exerciseMenu;
        r.exerciseMenu ? screen()->addExcercise() : screen()->addFood();
        EXPECT_EQ(screen()->actiondoor()->tag(), r.exerciseMenu ? 103 : 102);
        screen()->actiondoor()->clickButtonAtIndex(r.index);
        EXPECT_TRUE(window->presented().isEmpty());
        const ViewController* top = tab(0)->topViewController();
        EXPECT_STREQ(top->metaObject()->className(), r.screenClass);
        EXPECT_EQ(state.customEntryIsExercise, r.exerciseAfter);
        tab(0)->popToRootViewController(false);
    }
}

TEST_F(Today, AnOutOfRangeTodayEndsTheProgramWithAMessage) {
    AppState::shared().todayIndex = 366;
    EXPECT_DEATH(appearAgain(), "has no day record for today \\(day 367 of a 366-day plan\\)");
}
