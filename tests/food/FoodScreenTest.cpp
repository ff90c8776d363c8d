// The portion screen driven through its picker, as a user's turn of a wheel reaches it, in both
// modes: on the Today tab it books every settled wheel, elsewhere it only calculates.
#include <gtest/gtest.h>

#include "food/FoodScreen.h"
#include "food/SearchFoodScreen.h"
#include "store/AppState.h"
#include "support/AppHarness.h"
#include "ui/TabBarController.h"

namespace {

using Turns = std::initializer_list<std::pair<int, int>>;  // component, row

class Portion : public testing::Test {
protected:
    void SetUp() override { app.launch(); }
    // The portion screen for a food of item1 calories, pushed on the selected tab.
    static FoodScreen* open(const char* item1) {
        auto* screen = new FoodScreen;
        screen->item1 = item1;
        const int selected = AppState::shared().tabBarController->selectedIndex();
        tab(selected)->pushViewController(screen, false);
        return screen;
    }
    // Turns the wheels as a user does, in order; the amount shown after the last.
    static QString turn(FoodScreen* screen, Turns turns) {
        for (auto [component, row] : turns) screen->selectPicker()->userSelectedRow(row, component);
        return screen->calorieAmt()->text();
    }
    static int32_t& consumed() { return AppState::shared().consumedValue; }

    AppHarness app{{.firstTime = QString("no")}};
};

}  // namespace

// From the Food tab a calculator that books nothing, opening on the calories text as it stands:
// whole portions (one to start) times the calories, plus the fraction in floats cut toward zero.
TEST_F(Portion, ElsewhereItOnlyCalculates) {
    AppState::shared().tabBarController->setSelectedIndex(1);
    struct Case { const char* item1; Turns turns; const char* shown; };
    for (const Case& c : {Case{"150", {{0, 4}, {1, 2}, {2, 0}}, "637"},  // the blank wheel: 0
                          {"5", {{0, 1}, {1, 1}}, "5"},                   // 0.625 adds nothing
                          {"100", {{1, 4}}, "150"},  // a fraction first: one portion and a half
                          {"100", {{0, 0}}, "0"},
                          {"52.5", {{0, 3}, {1, 7}}, "201"},  // 52 a portion
                          {"-40", {{0, 2}, {1, 3}}, "-95"},   // -15 toward zero
                          {"9223372036854775807", {{0, 2}}, "-2"}}) {  // wraps, and stays defined
        FoodScreen* screen = open(c.item1);
        EXPECT_EQ(screen->title() + screen->calorieAmt()->text(), c.item1) << c.item1;
        EXPECT_EQ(screen->navigationItem()->rightBarButtonItem(), nullptr);
        EXPECT_EQ(turn(screen, c.turns), c.shown) << c.item1;
        screen->navigationController()->popViewController(false);
    }
    EXPECT_EQ(consumed(), 0);
}

// Every settled wheel adds the amount then shown (300, then 375; the blank wheel 375 again). Done
// writes the day the Log tab stands on and returns to Today; Cancel undoes nothing.
TEST_F(Portion, TodayBooksEveryTurnAndDoneWritesTheDay) {
    consumed() = 1000;
    FoodScreen* screen = open("150");
    EXPECT_EQ(screen->navigationItem()->leftBarButtonItem()->customView()->title(), "Cancel");
    EXPECT_TRUE(screen->labelFoodUnit()->adjustsFontSizeToFitWidth());
    PickerView* picker = screen->selectPicker();
    EXPECT_EQ(picker->rowCounts(), (QList<int>{201, 8, 1}));
    EXPECT_EQ(QStringList({picker->titleForRow(200, 0), picker->titleForRow(0, 1),
                           picker->titleForRow(7, 1), picker->titleForRow(0, 2)}),
              (QStringList{"200", "", "7/8", ""}));
    EXPECT_EQ(consumed(), 1000);

    EXPECT_EQ(turn(screen, {{0, 2}, {1, 4}}), "375");
    EXPECT_EQ(consumed(), 1000 + 300 + 375);
    turn(screen, {{2, 0}});
    EXPECT_EQ(consumed(), 1675 + 375);
    screen->DoneButton();
    EXPECT_EQ(tab(0)->viewControllers().size(), 1);
    EXPECT_EQ(dayInFile(app.databasePath(), 0), "2050 0");
    EXPECT_EQ(AppState::shared().dailyRows[0][2], "2050");

    // On another day of the Log tab; Cancel goes back to the search.
    AppState::shared().dayIndex = 5;
    tab(0)->pushViewController(new SearchFoodScreen, false);
    screen = open("10");
    turn(screen, {{0, 3}});
    screen->CancelButton();
    EXPECT_EQ(tab(0)->viewControllers().size(), 2);
    EXPECT_EQ(consumed(), 2050 + 30);
    open("10")->DoneButton();
    EXPECT_EQ(dayInFile(app.databasePath(), 5), "2080 0");
}
