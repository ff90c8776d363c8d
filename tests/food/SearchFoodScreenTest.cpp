// The food search screen driven through its outlets in the running app, pushed on the Today tab
// as the add menu does.
#include <gtest/gtest.h>

#include "food/FoodScreen.h"
#include "food/SearchFoodScreen.h"
#include "store/AppState.h"
#include "support/AppHarness.h"
#include "ui/TabBarController.h"

namespace {

class SearchFood : public testing::Test {
protected:
    void SetUp() override { app.launch(); }
    NavigationController* todayTab() { return AppState::shared().tabBarController->viewControllers()[0]; }
    SearchFoodScreen* push() {
        todayTab()->pushViewController(new SearchFoodScreen("SearchFoodScreen"), false);
        return qobject_cast<SearchFoodScreen*>(todayTab()->topViewController());
    }
    static int64_t rows(SearchFoodScreen* screen) { return screen->searchFoodTable()->numberOfRowsInSection(0); }
    static void type(SearchFoodScreen* screen, const QString& text) { screen->searchBarOut()->userChangedText(text); }

    AppHarness app{{.firstTime = QString("no")}};
};

}  // namespace

// Idle until something is typed, though the catalogue is loaded; every change searches afresh,
// and erasing the text hides the results without dropping them.
TEST_F(SearchFood, EveryChangeSearchesAfreshAndEmptyTextIsIdle) {
    SearchFoodScreen* screen = push();
    EXPECT_EQ(screen->title(), "Search Food");
    EXPECT_EQ(screen->searchFoodTable()->tableHeaderView(), screen->searchBarOut());
    EXPECT_EQ(screen->searchFoodTable()->backgroundColor().alpha(), 0);
    EXPECT_GT(AppState::shared().foodNames.size(), 8000u);
    EXPECT_EQ(rows(screen), 0);

    type(screen, "ap");
    const int64_t ap = rows(screen);
    type(screen, "app");
    const int64_t narrowed = rows(screen);
    EXPECT_GT(narrowed, 0);
    EXPECT_LT(narrowed, ap);
    EXPECT_EQ(AppState::shared().foodNames[screen->indexOfTheObject], screen->searchresultID.at(narrowed - 1));

    // A row's cell: the name in the thin face at 18 points, on a clear background.
    TableViewCell* cell = screen->searchFoodTable()->cellForRow(0);
    EXPECT_EQ(cell->textLabel()->text().toStdString(), screen->searchresultID.at(0));
    EXPECT_EQ(cell->textLabel()->fontName(), "HelveticaNeue-Thin");
    EXPECT_EQ(cell->textLabel()->fontSize(), 18);
    EXPECT_EQ(cell->backgroundColor().alpha(), 0);

    type(screen, "");
    EXPECT_FALSE(screen->search);
    EXPECT_EQ(rows(screen), 0);
    EXPECT_EQ(int64_t(screen->searchresult.size()), narrowed);
    type(screen, "ap");
    EXPECT_EQ(rows(screen), ap);
}

// Editing shows the cancel button; the search button only closes the keyboard; Cancel clears the
// text and the rows, but not the result lists.
TEST_F(SearchFood, SearchAndCancelButtons) {
    SearchFoodScreen* screen = push();
    SearchBar* bar = screen->searchBarOut();
    bar->userBeganEditing();
    EXPECT_TRUE(bar->showsCancelButton());
    EXPECT_TRUE(bar->cancelButtonAnimated());
    type(screen, "rice");
    const int64_t found = rows(screen);
    bar->userPressedSearch();
    EXPECT_FALSE(bar->firstResponder());
    EXPECT_EQ(rows(screen), found);

    bar->userBeganEditing();
    bar->userPressedCancel();
    EXPECT_FALSE(bar->showsCancelButton());
    EXPECT_FALSE(bar->firstResponder());
    EXPECT_EQ(bar->text(), "");
    EXPECT_EQ(rows(screen), 0);
    EXPECT_EQ(int64_t(screen->searchresult.size()), found);
}

// A name the catalogue holds twice is listed twice, and either row opens the portion screen with
// the first entry's calories and unit. The row stays highlighted, and the results outlive the
// visit to the portion screen.
TEST_F(SearchFood, ARepeatedNameOpensWithItsFirstEntry) {
    AppState& state = AppState::shared();
    state.foodNames.push_back("Bananas, raw");
    state.foodCalories.push_back("999");
    state.foodUnits.push_back("1 bunch");
    SearchFoodScreen* screen = push();
    LogCapture log;
    type(screen, "BANANAS, R");
    EXPECT_EQ(log.count("search result(Bananas, raw, Bananas, raw)"), 2u);
    ASSERT_EQ(rows(screen), 2);
    EXPECT_EQ(screen->searchCalorie.at(1), "200");

    screen->searchFoodTable()->userSelectedRow(1);
    auto* food = qobject_cast<FoodScreen*>(todayTab()->topViewController());
    ASSERT_NE(food, nullptr);
    EXPECT_EQ(food->layoutName(), "FoodScreen");
    EXPECT_EQ(food->item, "Bananas, raw");
    EXPECT_EQ(food->item1, "200");
    EXPECT_EQ(food->foodItemUnit, "1 cup, mashed (225 g)");
    EXPECT_TRUE(log.contains("Bananas, raw 200"));

    todayTab()->popViewController(false);
    EXPECT_EQ(rows(screen), 2);
    EXPECT_EQ(screen->searchFoodTable()->indexPathForSelectedRow(), (IndexPath{0, 1}));
}
