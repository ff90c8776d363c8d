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
    SearchFoodScreen* push() {
        tab(0)->pushViewController(new SearchFoodScreen, false);
        return qobject_cast<SearchFoodScreen*>(tab(0)->topViewController());
    }
    static int64_t rows(SearchFoodScreen* screen) {
        return screen->searchFoodTable()->numberOfRowsInSection(0);
    }

    AppHarness app{{.firstTime = QString("no")}};
};

}  // namespace

// Idle until something is typed, though the catalogue is loaded; every change searches afresh.
// Erasing the text, or Cancel, hides the results without dropping them.
TEST_F(SearchFood, EveryChangeSearchesAfreshAndEmptyTextOrCancelIsIdle) {
    SearchFoodScreen* screen = push();
    SearchBar* bar = screen->searchBarOut();
    EXPECT_EQ(screen->searchFoodTable()->tableHeaderView(), bar);
    EXPECT_EQ(rows(screen), 0);
    const QString typeHint = screen->emptyListHint();
    EXPECT_TRUE(typeHint.startsWith("Type part of a food's name")) << typeHint.toStdString();

    bar->userBeganEditing();
    EXPECT_TRUE(bar->showsCancelButton());
    bar->userChangedText("ap");
    const int64_t ap = rows(screen);
    bar->userChangedText("app");
    const int64_t narrowed = rows(screen);
    EXPECT_GT(narrowed, 0);
    EXPECT_LT(narrowed, ap);
    EXPECT_EQ(AppState::shared().foodNames[screen->indexOfTheObject],
              screen->searchresultID.at(narrowed - 1));
    TableViewCell* cell = screen->searchFoodTable()->cellForRow(0);
    EXPECT_EQ(cell->textLabel()->text().toStdString(), screen->searchresultID.at(0));
    EXPECT_EQ(cell->textLabel()->fontName(), "HelveticaNeue-Thin");

    bar->userPressedSearch();  // only the keyboard goes
    EXPECT_FALSE(bar->firstResponder());
    EXPECT_EQ(rows(screen), narrowed);
    EXPECT_EQ(screen->emptyListHint(), "No food of the catalogue has this in its name.");
    bar->userChangedText("");
    EXPECT_EQ(rows(screen), 0);
    EXPECT_EQ(screen->emptyListHint(), typeHint);
    EXPECT_EQ(int64_t(screen->searchresult.size()), narrowed);
    bar->userChangedText("ap");
    EXPECT_EQ(rows(screen), ap);
    bar->userPressedCancel();
    EXPECT_FALSE(bar->showsCancelButton());
    EXPECT_EQ(bar->text(), "");
    EXPECT_EQ(rows(screen), 0);
    EXPECT_EQ(int64_t(screen->searchresult.size()), ap);
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
    screen->searchBarOut()->userChangedText("BANANAS, R");
    EXPECT_EQ(log.count("search result(Bananas, raw, Bananas, raw)"), 2u);
    ASSERT_EQ(rows(screen), 2);

    screen->searchFoodTable()->userSelectedRow(1);
    auto* food = qobject_cast<FoodScreen*>(tab(0)->topViewController());
    ASSERT_NE(food, nullptr);
    EXPECT_EQ(food->item + " " + food->item1 + " " + food->foodItemUnit,
              "Bananas, raw 200 1 cup, mashed (225 g)");
    EXPECT_TRUE(log.contains("Bananas, raw 200"));

    tab(0)->popViewController(false);
    EXPECT_EQ(rows(screen), 2);
    EXPECT_EQ(screen->searchFoodTable()->indexPathForSelectedRow(), (IndexPath{0, 1}));
}
