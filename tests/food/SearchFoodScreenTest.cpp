// The food search screen driven through its outlets in the running app, pushed on the Today tab;
// the walks in tests/ui pick by name and keyboard and come back to the results.
#include <gtest/gtest.h>

#include "food/FoodScreen.h"
#include "food/SearchFoodScreen.h"
#include "store/AppState.h"
#include "support/AppHarness.h"

// Idle until something is typed; every change searches afresh; erasing or Cancel hides the results
// without dropping them. A name held twice opens with its first entry's calories and unit.
TEST(SearchFood, EveryChangeSearchesAfreshAndARepeatedNameOpensWithItsFirstEntry) {
    AppHarness app({.firstTime = QString("no")});
    app.launch();
    AppState& state = AppState::shared();
    state.foodNames.push_back("Bananas, raw");  // before the screen takes the catalogue
    state.foodCalories.push_back("999");
    state.foodUnits.push_back("1 bunch");
    auto* screen = new SearchFoodScreen;
    tab(0)->pushViewController(screen, false);
    SearchBar* bar = screen->searchBarOut();
    const auto rows = [&] { return screen->searchFoodTable()->numberOfRowsInSection(0); };
    EXPECT_EQ(screen->searchFoodTable()->tableHeaderView(), bar);
    EXPECT_EQ(rows(), 0);
    const QString typeHint = screen->emptyListHint();
    EXPECT_TRUE(typeHint.startsWith("Type part of a food's name")) << typeHint.toStdString();

    bar->userBeganEditing();
    EXPECT_TRUE(bar->showsCancelButton());
    bar->userChangedText("ap");
    const int64_t ap = rows();
    bar->userChangedText("app");
    const int64_t narrowed = rows();
    EXPECT_TRUE(narrowed > 0 && narrowed < ap);
    EXPECT_EQ(state.foodNames[screen->indexOfTheObject], screen->searchresultID.at(narrowed - 1));
    const Label* cell = screen->searchFoodTable()->cellForRow(0)->textLabel();
    EXPECT_EQ(cell->text().toStdString(), screen->searchresultID.at(0));
    EXPECT_EQ(cell->fontName() + " " + QString::number(cell->fontSize()), "HelveticaNeue-Thin 18");
    bar->userPressedSearch();  // only the keyboard goes
    EXPECT_FALSE(bar->firstResponder());
    EXPECT_EQ(rows(), narrowed);
    EXPECT_EQ(screen->emptyListHint(), "No food of the catalogue has this in its name.");

    bar->userChangedText("");
    EXPECT_EQ(rows(), 0);
    EXPECT_EQ(screen->emptyListHint(), typeHint);
    EXPECT_EQ(int64_t(screen->searchresult.size()), narrowed);
    bar->userChangedText("ap");
    EXPECT_EQ(rows(), ap);
    bar->userPressedCancel();
    EXPECT_FALSE(bar->showsCancelButton());
    EXPECT_EQ(bar->text(), "");
    EXPECT_EQ(rows(), 0);
    EXPECT_EQ(int64_t(screen->searchresult.size()), ap);

    LogCapture log;
    bar->userChangedText("BANANAS, R");
    EXPECT_EQ(log.count("search result(Bananas, raw, Bananas, raw)"), 2u);
    ASSERT_EQ(rows(), 2);
    screen->searchFoodTable()->userSelectedRow(1);
    auto* food = qobject_cast<FoodScreen*>(tab(0)->topViewController());
    ASSERT_NE(food, nullptr);
    EXPECT_EQ(food->item + " " + food->item1 + " " + food->foodItemUnit,
              "Bananas, raw 200 1 cup, mashed (225 g)");
    EXPECT_TRUE(log.contains("Bananas, raw 200"));
}
