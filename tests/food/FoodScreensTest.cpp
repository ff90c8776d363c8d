// The food screens driven through their outlets and actions in the running app: the search, the
// portion wheels in both modes (on Today they book every settled wheel, elsewhere they only
// calculate) and calories typed by hand. The food walk (tests/ui) does the same by name and key;
// how a text reads as a number is the core's.
#include <gtest/gtest.h>

#include "food/CustomEntryScreen.h"
#include "food/FoodScreen.h"
#include "food/SearchFoodScreen.h"
#include "store/AppState.h"
#include "support/AppHarness.h"
#include "ui/TabBarController.h"

namespace {

using Turns = std::initializer_list<std::pair<int, int>>;  // component, row

class FoodScreens : public testing::Test {
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
    std::string saved(int id) { return dayInFile(app.databasePath(), id); }

    AppHarness app{{.firstTime = QString("no")}};
};

}  // namespace

// A name held twice opens with its first entry's calories and unit, whichever row is picked.
TEST_F(FoodScreens, ASearchedNameHeldTwiceOpensWithItsFirstEntry) {
    AppState& state = AppState::shared();
    state.foodNames.push_back("Bananas, raw");  // before the screen takes the catalogue
    state.foodCalories.push_back("999");
    state.foodUnits.push_back("1 bunch");
    auto* screen = new SearchFoodScreen;
    tab(0)->pushViewController(screen, false);
    SearchBar* bar = screen->searchBarOut();
    for (const bool cancel : {true, false}) {  // either way the keyboard goes
        bar->userBeganEditing();
        bar->userChangedText("BANANAS, R");
        cancel ? bar->userPressedCancel() : bar->userPressedSearch();
        EXPECT_FALSE(bar->firstResponder());
    }
    ASSERT_EQ(screen->searchFoodTable()->numberOfRowsInSection(0), 2);
    screen->searchFoodTable()->userSelectedRow(1);
    auto* food = qobject_cast<FoodScreen*>(tab(0)->topViewController());
    ASSERT_NE(food, nullptr);
    EXPECT_EQ(food->item + " " + food->item1 + " " + food->foodItemUnit,
              "Bananas, raw 200 1 cup, mashed (225 g)");
}

// From the Food tab a calculator that books nothing, opening on the calories text as it stands:
// whole portions (one to start) times the calories, plus the fraction in floats cut toward zero.
TEST_F(FoodScreens, PortionsElsewhereOnlyCalculate) {
    AppState::shared().tabBarController->setSelectedIndex(1);
    struct Case { const char* item1; Turns turns; const char* shown; };
    for (const Case& c : {Case{"150", {{0, 4}, {1, 2}, {2, 0}}, "637"},  // the blank wheel: 0
                          {"5", {{0, 1}, {1, 1}}, "5"},                   // 0.625 adds nothing
                          {"100", {{1, 4}}, "150"},  // a fraction first: one portion and a half
                          {"52.5", {{0, 3}, {1, 7}}, "201"},  // 52 a portion
                          {"-40", {{0, 2}, {1, 3}}, "-95"},   // -15 toward zero
                          {"9223372036854775807", {{0, 2}}, "-2"}}) {  // wraps, and stays defined
        SCOPED_TRACE(c.item1);
        FoodScreen* screen = open(c.item1);
        EXPECT_EQ(screen->title() + screen->calorieAmt()->text(), c.item1);
        EXPECT_EQ(screen->navigationItem()->rightBarButtonItem(), nullptr);
        EXPECT_EQ(turn(screen, c.turns), c.shown);
        screen->navigationController()->popViewController(false);
    }
    EXPECT_EQ(consumed(), 0);
}

// Every settled wheel adds the amount then shown (300, then 375; the blank wheel 375 again). Done
// writes the day the Log tab stands on and returns to Today; Cancel undoes nothing.
TEST_F(FoodScreens, PortionsOnTodayBookEveryTurnAndDoneWritesTheDay) {
    consumed() = 1000;
    FoodScreen* screen = open("150");
    EXPECT_EQ(screen->selectPicker()->rowCounts(), (QList<int>{201, 8, 1}));
    EXPECT_EQ(consumed(), 1000);

    EXPECT_EQ(turn(screen, {{0, 2}, {1, 4}}), "375");
    EXPECT_EQ(consumed(), 1000 + 300 + 375);
    turn(screen, {{2, 0}});
    EXPECT_EQ(consumed(), 1675 + 375);
    screen->DoneButton();
    EXPECT_EQ(tab(0)->viewControllers().size(), 1);
    EXPECT_EQ(saved(0), "2050 0");

    // On another day of the Log tab; Cancel goes back to the search.
    AppState::shared().dayIndex = 5;
    tab(0)->pushViewController(new SearchFoodScreen, false);
    screen = open("10");
    turn(screen, {{0, 3}});
    screen->CancelButton();
    EXPECT_EQ(tab(0)->viewControllers().size(), 2);
    EXPECT_EQ(consumed(), 2050 + 30);
    open("10")->DoneButton();
    EXPECT_EQ(saved(5), "2080 0");
}

// Eaten calories add to consumed; burned ones to burned and off consumed, written to the day
// being edited, not today; the days are read again and "Done" goes back.
TEST_F(FoodScreens, CustomEntryBooksEatenOrBurnedOnTheDayBeingEdited) {
    AppState& state = AppState::shared();
    const auto enter = [&](bool exercise, const char* text) {
        state.customEntryIsExercise = exercise;
        auto* screen = new CustomEntryScreen;
        tab(0)->pushViewController(screen, false);
        screen->calorieTxt()->setText(text);
        screen->nextButton();
        EXPECT_EQ(tab(0)->viewControllers().size(), 1);
    };
    state.dayIndex = 4;
    enter(false, "1212abc");
    EXPECT_EQ(saved(4), "1212 0");
    state.consumedValue = 1200;  // Today, back on top, has reloaded today's own values
    enter(true, "300");
    EXPECT_EQ(saved(4), "900 300");
}
