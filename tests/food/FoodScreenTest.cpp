// The portion screen driven through its picker, as a user's turn of a wheel reaches it, in both
// modes: on the Today tab it books every settled wheel, elsewhere it only calculates.
#include <gtest/gtest.h>

#include "food/FoodScreen.h"
#include "food/SearchFoodScreen.h"
#include "store/AppState.h"
#include "support/AppHarness.h"
#include "ui/TabBarController.h"

namespace {

class Portion : public testing::Test {
protected:
    void SetUp() override { app.launch(); }
    TabBarController* tabs() { return AppState::shared().tabBarController; }
    // The portion screen for a food of item1 calories, pushed on the selected tab.
    FoodScreen* open(const char* item1) {
        auto* screen = new FoodScreen;
        screen->item1 = item1;
        tabs()->selectedViewController()->pushViewController(screen, false);
        return screen;
    }
    // Turns the wheels as a user does: each row, in order, as {component, row}.
    static QString turn(FoodScreen* screen, std::initializer_list<std::pair<int, int>> turns) {
        for (auto [component, row] : turns) screen->selectPicker()->userSelectedRow(row, component);
        return screen->calorieAmt()->text();
    }
    int32_t& consumed() { return AppState::shared().consumedValue; }

    AppHarness app{{.firstTime = QString("no")}};
};

}  // namespace

// The picker starts on one portion without booking it, and shows the calories text as it stands.
TEST_F(Portion, OpensOnOnePortionWithTheCatalogueText) {
    FoodScreen* screen = open("52.5");
    const NavigationItem* bar = screen->navigationItem();
    EXPECT_EQ(screen->title() + bar->leftBarButtonItem()->customView()->title() +
                  bar->rightBarButtonItem()->customView()->title(),
              "Add FoodCancelDone");
    EXPECT_EQ(screen->calorieAmt()->text(), "52.5");
    EXPECT_TRUE(screen->labelFoodUnit()->adjustsFontSizeToFitWidth());
    PickerView* picker = screen->selectPicker();
    EXPECT_EQ(picker->rowCounts(), (QList<int>{201, 8, 1}));
    EXPECT_EQ(picker->selectedRowInComponent(0), 1);
    EXPECT_EQ(QStringList({picker->titleForRow(200, 0), picker->titleForRow(0, 1),
                           picker->titleForRow(7, 1), picker->titleForRow(0, 2)}),
              (QStringList{"200", "", "7/8", ""}));
    EXPECT_EQ(consumed(), 0);
}

// Whole portions times the calories, plus the fraction in single precision cut toward zero; the
// whole portions start at one.
TEST_F(Portion, Arithmetic) {
    struct Case {
        const char* item1;
        std::initializer_list<std::pair<int, int>> turns;
        const char* shown;
    };
    for (const Case& c : {Case{"150", {{0, 2}, {1, 4}}, "375"},
                          {"5", {{0, 1}, {1, 1}}, "5"},  // 0.625 adds nothing
                          {"100", {{1, 4}}, "150"},      // a fraction first: one portion and a half
                          {"100", {{0, 0}}, "0"},
                          {"52.5", {{0, 3}, {1, 7}}, "201"},  // 52 a portion
                          {"-40", {{0, 2}, {1, 3}}, "-95"},   // -15 toward zero
                          {"abc", {{0, 7}, {1, 4}}, "0"},
                          {"9223372036854775807", {{0, 2}}, "-2"}}) {  // wraps, and stays defined
        SCOPED_TRACE(c.item1);
        FoodScreen* screen = open(c.item1);
        EXPECT_EQ(turn(screen, c.turns), c.shown);
        tabs()->selectedViewController()->popViewController(false);
    }
}

// Every settled wheel adds the amount then shown: 300, then 375, 675 in all; the blank third
// wheel adds it again. Done writes the day's total and returns to Today; Cancel undoes nothing.
TEST_F(Portion, TodayBooksEveryTurnAndDoneWritesTheDay) {
    consumed() = 1000;
    FoodScreen* screen = open("150");
    EXPECT_EQ(turn(screen, {{0, 2}, {1, 4}}), "375");
    EXPECT_EQ(consumed(), 1000 + 300 + 375);
    turn(screen, {{2, 0}});
    EXPECT_EQ(consumed(), 1675 + 375);
    screen->DoneButton();
    EXPECT_EQ(tabs()->viewControllers()[0]->viewControllers().size(), 1);
    EXPECT_EQ(queryColumn(app.databasePath(), "SELECT calorieConsumed FROM dailyData WHERE id = 0"),
              std::vector<std::string>{"2050"});
    EXPECT_EQ(AppState::shared().dailyRows[0][2], "2050");

    // The Log tab moved to another day: that day is booked. Cancel goes back to the search and
    // undoes nothing.
    AppState::shared().dayIndex = 5;
    tabs()->viewControllers()[0]->pushViewController(new SearchFoodScreen, false);
    screen = open("10");
    turn(screen, {{0, 3}});
    screen->CancelButton();
    EXPECT_EQ(tabs()->viewControllers()[0]->viewControllers().size(), 2);
    EXPECT_EQ(consumed(), 2050 + 30);
    open("10")->DoneButton();
    EXPECT_EQ(queryColumn(app.databasePath(), "SELECT calorieConsumed FROM dailyData WHERE id = 5"),
              std::vector<std::string>{"2080"});
}

// From the Food tab the screen is a calculator: no title, no buttons, nothing booked.
TEST_F(Portion, ElsewhereItOnlyCalculates) {
    tabs()->setSelectedIndex(1);
    FoodScreen* screen = open("150");
    EXPECT_EQ(screen->title(), "");
    EXPECT_EQ(screen->navigationItem()->rightBarButtonItem(), nullptr);
    EXPECT_EQ(screen->navigationItem()->leftBarButtonItem(), nullptr);
    EXPECT_EQ(turn(screen, {{0, 4}, {1, 2}, {2, 0}}), "637");
    EXPECT_EQ(consumed(), 0);
}
