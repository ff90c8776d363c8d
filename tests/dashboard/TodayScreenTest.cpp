// The Today screen driven through its outlets and actions in the running app.
#include <gtest/gtest.h>

#include "dashboard/TodayScreen.h"
#include "store/AppState.h"
#include "support/AppHarness.h"
#include "ui/TabBarController.h"

using namespace std::chrono_literals;

namespace {

// Two days into a 1850-calorie plan (today is day 2), with 1240 eaten and 220 burned today.
class Today : public testing::Test {
protected:
    void SetUp() override {
        HarnessOptions options;
        options.firstTime = QString("no");
        app = std::make_unique<AppHarness>(options);
        const std::string db = app->prepareDatabase();
        writePlan(db, utc("2026-03-05 10:00:00") - 49h, "1850", 366);
        execSql(db, "UPDATE dailyData SET calorieConsumed = 1240, calorieBurned = 220 WHERE id = 2");
        app->launch();
        ASSERT_EQ(AppState::shared().todayIndex, 2);
    }
    NavigationController* todayTab() {
        return AppState::shared().tabBarController->viewControllers()[0];
    }
    TodayScreen* screen() { return qobject_cast<TodayScreen*>(todayTab()->viewControllers()[0]); }
    void appearAgain() { screen()->beginAppearance(true, false); }
    // What code has drawn into the scroll area, of one kind, in drawing order.
    template <class Layer>
    QList<Layer*> drawn() {
        QList<Layer*> found;
        for (QObject* view : screen()->mainScroll()->subviews())
            if (auto* layer = qobject_cast<Layer*>(view)) found << layer;
        return found;
    }
    QStringList figures() {
        return {screen()->todayLable()->text(), screen()->detailCalorie()->text(),
                screen()->detailExercise()->text()};
    }

    FixedClock clock{utc("2026-03-05 10:00:00")};
    std::unique_ptr<AppHarness> app;
};

}  // namespace

TEST_F(Today, ScaleMarksAndBudgetLineFollowTheBudget) {
    struct Case {
        int32_t budget;
        QStringList marks;  // mid, max1, max, top, as the labels show them
        float lineX;        // budget / (top / 320)
    };
    for (const Case& c : {Case{1850, {"1000", "1500", "2000", "3000"}, 197.333f},
                          Case{2400, {"2000", "2000", "3000", "4000"}, 192},
                          Case{999, {"500", "750", "1000", "1500"}, 213.12f},
                          Case{0, {"1", "0", "1", "1"}, 0}}) {
        SCOPED_TRACE(c.budget);
        AppState::shared().calorieBudgetValue = c.budget;
        appearAgain();
        TodayScreen* s = screen();
        EXPECT_EQ((QStringList{s->midValue()->text(), s->max1Value()->text(),
                               s->maxValue()->text(), s->ExtremeMaxValue()->text()}),
                  c.marks);
        const ShapeLayer* line = drawn<ShapeLayer>().last();
        EXPECT_NEAR(line->from().x(), c.lineX, 0.001);
        EXPECT_EQ(line->from(), QPointF(line->to().x(), 96));
        EXPECT_EQ(line->to().y(), 145);
        const QList<Label*> labels = drawn<Label>().mid(drawn<Label>().size() - 2);
        EXPECT_EQ(labels[0]->text(), "Budget");
        EXPECT_EQ(labels[0]->frame(), QRectF(line->from().x() - 39, 134, 57, 17));
        EXPECT_EQ(labels[1]->text(), QString::number(c.budget));
        EXPECT_EQ(labels[1]->frame(), QRectF(line->from().x() + 5, 134, 57, 17));
    }
}

TEST_F(Today, ShowsTodaysRowAndBurningNeverChangesCaloriesLeft) {
    EXPECT_EQ(screen()->dateLbl()->text(), "Today, March 5");
    EXPECT_EQ(figures(), (QStringList{"610", "1240 Cal", "220 Cal"}));
    const ShapeLayer* firstBar = screen()->shapeLayer();
    EXPECT_EQ(firstBar->from(), QPointF(0, 117));
    EXPECT_NEAR(firstBar->to().x(), 1240 / 9.375, 0.001);
    EXPECT_EQ(firstBar->lineWidth(), 38);
    EXPECT_TRUE(screen()->mainScroll()->contentSize().isEmpty());  // scrolling as the layout has it

    // Today's row whatever day the Log tab has chosen, read as the program reads numbers: more
    // eaten than the budget goes negative, and a value past 32 bits is cut to them.
    AppState& state = AppState::shared();
    state.dayIndex = 0;
    state.dailyRows[2][2] = "2000";
    state.dailyRows[2][3] = "900 kcal";
    appearAgain();
    EXPECT_EQ(figures(), (QStringList{"-150", "2000 Cal", "900 Cal"}));
    state.dailyRows[2][2] = "4294967396";  // 2^32 + 100
    appearAgain();
    EXPECT_EQ(figures(), (QStringList{"1750", "100 Cal", "900 Cal"}));
    state.dailyRows[2][2] = "4500";  // past the top mark: the bar runs off the edge
    appearAgain();
    EXPECT_EQ(screen()->shapeLayer()->to().x(), 480);

    // The bar is replaced; budget lines and their labels pile up, one set per appearance.
    const QList<ShapeLayer*> layers = drawn<ShapeLayer>();
    EXPECT_FALSE(layers.contains(firstBar));
    EXPECT_EQ(layers.count(screen()->shapeLayer()), 1);
    EXPECT_EQ(layers.size(), 1 + 4);
    EXPECT_EQ(drawn<Label>().size(), 2 * 4);
}

TEST_F(Today, AddMenusLeadToTheEntryScreens) {
    Window* window = app->window();
    screen()->AddButton();
    ActionSheet* add = screen()->actiondoor();
    EXPECT_EQ(add->tag(), 101);
    EXPECT_EQ(add->title(), "Select Option");
    EXPECT_EQ(add->otherButtonTitles(), (QStringList{"Add Food", "Add Excercise"}));
    EXPECT_EQ(add->cancelButtonTitle(), "Cancel");

    // Cancelling the add menu brings the same menu back; cancelling the others closes them.
    add->clickButtonAtIndex(2);
    EXPECT_EQ(window->presented(), QList<QObject*>{add});
    add->clickButtonAtIndex(0);
    EXPECT_EQ(screen()->actiondoor()->tag(), 102);
    EXPECT_EQ(screen()->actiondoor()->otherButtonTitles(),
              (QStringList{"Search for food", "Custom food"}));
    screen()->actiondoor()->clickButtonAtIndex(2);
    EXPECT_TRUE(window->presented().isEmpty());
    screen()->AddButton();
    screen()->actiondoor()->clickButtonAtIndex(1);
    EXPECT_EQ(screen()->actiondoor()->tag(), 103);
    EXPECT_EQ(screen()->actiondoor()->otherButtonTitles(),
              (QStringList{"Browse exercises", "Custom exercise"}));
    screen()->actiondoor()->clickButtonAtIndex(2);
    EXPECT_TRUE(window->presented().isEmpty());
    EXPECT_EQ(todayTab()->viewControllers().size(), 1);

    // A custom entry is told which kind it books; the other choices leave that alone.
    struct Route {
        void (TodayScreen::*menu)(Button*);
        int index;
        const char* screenClass;
        bool exerciseBefore, exerciseAfter;
    };
    const Route routes[] = {
        {&TodayScreen::addFood, 0, "SearchFoodScreen", true, true},
        {&TodayScreen::addFood, 1, "CustomEntryScreen", true, false},
        {&TodayScreen::addExcercise, 0, "ExerciseScreen", false, false},
        {&TodayScreen::addExcercise, 1, "CustomEntryScreen", false, true},
    };
    AppState& state = AppState::shared();
    for (const Route& route : routes) {
        SCOPED_TRACE(route.screenClass);
        state.customEntryIsExercise = route.exerciseBefore;
        (screen()->*route.menu)(nullptr);
        screen()->actiondoor()->clickButtonAtIndex(route.index);
        const ViewController* top = todayTab()->topViewController();
        EXPECT_STREQ(top->metaObject()->className(), route.screenClass);
        EXPECT_EQ(top->layoutName(), route.screenClass);
        EXPECT_EQ(state.customEntryIsExercise, route.exerciseAfter);
        todayTab()->popToRootViewController(false);
    }
}

TEST_F(Today, AnOutOfRangeTodayEndsTheProgramWithAMessage) {
    AppState::shared().todayIndex = 366;
    EXPECT_DEATH(appearAgain(), "dailyRows has no position 366 \\(it holds 366\\)");
}
