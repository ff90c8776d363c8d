// Booking food the way a person does it in the real window, drawn offscreen: from Today's add
// menu, type a name key by key into the search field, pick a food, turn the wheels, "Done"; the
// same search from the Food tab only calculates; calories typed by hand, eaten and burned.
// Screenshots of what they see land in the build folder's screenshots/.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <cmath>

#include "food/FoodScreen.h"
#include "food/SearchFoodScreen.h"
#include "overlay/StatusOverlay.h"
#include "store/AppState.h"
#include "support/AppHarness.h"
#include "ui/TabBarController.h"

namespace {

template <class Screen>
Screen* top(int tabIndex) {
    return qobject_cast<Screen*>(tab(tabIndex)->topViewController());
}

// What assistive technology reads of the named control: a wheel's value is the number it shows.
double valueOf(AppHarness& app, const QString& name) {
    QQuickItem* item = app.findByName(name);
    QAccessibleInterface* node = item ? QAccessible::queryAccessibleInterface(item) : nullptr;
    return node && node->valueInterface() ? node->valueInterface()->currentValue().toDouble() : -1;
}

class Food : public testing::TestWithParam<bool> {
protected:
    void SetUp() override { app.launch(); }
    QString idiom() const { return GetParam() ? "pad" : "phone"; }

    // Opens the search from the add menu or the Food tab, then types query into the field.
    void search(const QString& query, bool fromToday) {
        ASSERT_TRUE(fromToday ? app.click("Add food") && app.click("Search for food") : app.click("Food"));
        ASSERT_TRUE(app.click("Search"));
        app.type(query);
    }
    bool overlayGone() {
        return QTest::qWaitFor([] { return !StatusOverlay::shared().isShown(); }, 5000);
    }

    AppHarness app{{.pad = GetParam(), .firstTime = QString("no")}};
};

}  // namespace

TEST_P(Food, SearchedAndPortionedFromTodayIsBooked) {
    search("apple", true);
    auto* searchScreen = top<SearchFoodScreen>(0);
    ASSERT_NE(searchScreen, nullptr);
    // Every food with "apple" anywhere, in any case, as SQLite's own LIKE finds them.
    EXPECT_EQ(std::to_string(searchScreen->searchFoodTable()->numberOfRowsInSection(0)),
              queryColumn(app.databasePath(), "SELECT count(*) FROM food WHERE id > 0 AND name LIKE '%apple%'")[0]);
    ASSERT_NE(app.findByName("APPLEBEE'S, French fries"), nullptr);
    // Thousands of rows on the way ("a"), and a screenful of cells made for them.
    EXPECT_LT(searchScreen->searchFoodTable()->findChildren<TableViewCell*>().size(), 60);
    app.saveScreenshot(idiom() + "-food-search");

    // Row 150 brought to the top, gliding there, and back.
    TableView* table = searchScreen->searchFoodTable();
    const QString far = QString::fromStdString(searchScreen->searchresultID.at(150));
    table->scrollToRowAtIndexPath({0, 150}, TableView::ScrollPosition::Top, true);
    EXPECT_TRUE(QTest::qWaitFor([&] {
        QQuickItem* row = app.findByName(far);
        return row && std::abs(row->mapToScene({0, 0}).y() - 44) < 1;
    }, 5000));
    table->scrollToRowAtIndexPath({0, 0}, TableView::ScrollPosition::Top, false);
    app.settle();

    ASSERT_TRUE(app.click("Apple juice, canned or bottled, unsweetened, with added ascorbic acid"));
    auto* food = top<FoodScreen>(0);
    ASSERT_NE(food, nullptr);
    EXPECT_EQ(food->title(), "Add Food");
    EXPECT_EQ(food->calorieAmt()->text(), "114");
    EXPECT_NE(app.findByName("1 cup (248 g)"), nullptr);

    // It opens on one portion, which is shown and not booked.
    EXPECT_EQ(valueOf(app, "Portions"), 1);
    EXPECT_EQ(AppState::shared().consumedValue, 0);
    app.saveScreenshot(idiom() + "-food-portion");

    // Two flicks and two arrow keys: four settled turns, each booking what it shows then.
    ASSERT_TRUE(app.turn("Portions", 2));
    const int64_t portions = food->selectPicker()->selectedRowInComponent(0);
    EXPECT_GT(portions, 1);
    ASSERT_TRUE(app.turn("Fraction", 4));
    const int64_t eighths = food->selectPicker()->selectedRowInComponent(1);
    EXPECT_GT(eighths, 0);
    const int64_t fraction = 114 * eighths / 8;
    EXPECT_EQ(food->calorieAmt()->text(), QString::number(portions * 114 + fraction));
    ASSERT_TRUE(app.tabTo("Portions"));
    app.key(Qt::Key_Down, 2);
    EXPECT_EQ(valueOf(app, "Portions"), portions + 2);
    EXPECT_EQ(food->calorieAmt()->text(), QString::number((portions + 2) * 114 + fraction));
    const int32_t booked = int32_t(portions * 114 + (portions * 114 + fraction) +
                                   ((portions + 1) * 114 + fraction) + ((portions + 2) * 114 + fraction));
    EXPECT_EQ(AppState::shared().consumedValue, booked);

    ASSERT_TRUE(app.click("Done"));
    ASSERT_TRUE(overlayGone());
    EXPECT_EQ(tab(0)->viewControllers().size(), 1);
    EXPECT_NE(app.findByName(QString("%1 Cal").arg(booked)), nullptr);
    EXPECT_EQ(dayInFile(app.databasePath(), 0), std::to_string(booked) + " 0");
}

// By keyboard alone this time: type, Tab past Cancel into the results, an arrow down, Return.
TEST_P(Food, SearchedFromTheFoodTabOnlyCalculates) {
    ASSERT_TRUE(app.click("Food"));
    app.saveScreenshot(idiom() + "-food-tab");
    ASSERT_TRUE(app.click("Search"));
    // The row that has the keyboard is what assistive technology hears as focused and selected.
    const auto focusedRow = [&] {
        QAccessibleInterface* node = app.focused() ? QAccessible::queryAccessibleInterface(app.focused()) : nullptr;
        return node && node->role() == QAccessible::ListItem && node->state().focused && node->state().selected
                   ? node->text(QAccessible::Name) : QString();
    };
    app.type("banana,");
    app.key(Qt::Key_Tab);
    EXPECT_EQ(app.focused(), app.findByName("Cancel"));
    app.key(Qt::Key_Tab);
    EXPECT_EQ(focusedRow(), "Babyfood, fruit, applesauce with banana, junior");
    // Back in the field, typing goes on there while the rows change beneath it.
    app.key(Qt::Key_Backtab, 2);
    app.type(" r");
    EXPECT_TRUE(app.focused() && app.focused()->inherits("QQuickTextInput"));
    // Tab goes on past the table, and back into it at its first row on screen.
    app.key(Qt::Key_Tab, 3);
    EXPECT_EQ(app.focused(), app.findByName("Today"));
    app.key(Qt::Key_Backtab);
    EXPECT_EQ(focusedRow(), "Pepper, banana, raw");
    app.key(Qt::Key_Down);
    EXPECT_EQ(focusedRow(), "Puddings, banana, ready-to-eat");
    app.key(Qt::Key_Return);
    app.settle();
    auto* food = top<FoodScreen>(1);
    ASSERT_NE(food, nullptr);
    EXPECT_EQ(food->item, "Puddings, banana, ready-to-eat");
    EXPECT_EQ(app.findByName("Done"), nullptr);
    ASSERT_TRUE(app.tabTo("Portions"));
    app.key(Qt::Key_Down, 2);
    EXPECT_EQ(food->calorieAmt()->text(), "108");
    EXPECT_EQ(AppState::shared().consumedValue, 0);
    app.saveScreenshot(idiom() + "-food-portion-browse");

    // Back, the results are still there, the chosen one highlighted; Cancel clears them away
    // and takes the keyboard.
    ASSERT_TRUE(app.click("‹ Back"));
    auto* search = top<SearchFoodScreen>(1);
    ASSERT_NE(search, nullptr);
    EXPECT_NE(app.findByName("Pepper, banana, raw"), nullptr);
    EXPECT_EQ(search->searchFoodTable()->indexPathForSelectedRow(), (IndexPath{0, 1}));
    ASSERT_TRUE(app.click("Search"));
    ASSERT_TRUE(app.click("Cancel"));
    EXPECT_EQ(app.findByName("Pepper, banana, raw"), nullptr);
    EXPECT_FALSE(app.quickWindow()->activeFocusItem() && app.quickWindow()->activeFocusItem()->inherits("QQuickTextInput"));
    EXPECT_EQ(dayInFile(app.databasePath(), 0), "0 0");
}

TEST_P(Food, CustomCaloriesEatenAndBurned) {
    ASSERT_TRUE(app.click("Add food"));
    ASSERT_TRUE(app.click("Custom food"));
    EXPECT_NE(app.findByName("Enter Amount of Calories"), nullptr);
    app.type("1200");
    app.saveScreenshot(idiom() + "-custom-food");
    ASSERT_TRUE(app.click("Done"));
    ASSERT_TRUE(overlayGone());
    EXPECT_NE(app.findByName("1200 Cal"), nullptr);

    ASSERT_TRUE(app.click("Add exercise"));
    ASSERT_TRUE(app.click("Custom exercise"));
    EXPECT_NE(app.findByName("Calories Burned"), nullptr);
    EXPECT_NE(app.findByName("Enter Amount of Calories burned"), nullptr);
    app.type("300");
    app.saveScreenshot(idiom() + "-custom-exercise");
    ASSERT_TRUE(app.click("Done"));
    ASSERT_TRUE(overlayGone());
    EXPECT_NE(app.findByName("900 Cal"), nullptr);
    EXPECT_NE(app.findByName("300 Cal"), nullptr);
    EXPECT_EQ(dayInFile(app.databasePath(), 0), "900 300");
}

INSTANTIATE_TEST_SUITE_P(Idioms, Food, testing::Values(false, true),
                         [](const auto& info) { return info.param ? "Pad" : "Phone"; });
