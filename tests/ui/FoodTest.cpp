// Booking food the way a person does it in the real window, drawn offscreen: the Food tab's search
// by keyboard alone, which opens a calculator; then from Today's add menu, a name typed key by key,
// a food picked, the wheels turned, "Done". Screenshots of what they see land in the build
// folder's screenshots/.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QQuickItem>
#include <QTest>

#include "food/FoodScreen.h"
#include "food/SearchFoodScreen.h"
#include "overlay/StatusOverlay.h"
#include "store/AppState.h"
#include "support/AppHarness.h"

namespace {

template <class Screen>
Screen* top(int tabIndex) {
    return qobject_cast<Screen*>(tab(tabIndex)->topViewController());
}

class Food : public testing::TestWithParam<bool> {};

}  // namespace

TEST_P(Food, ResultsWalkedByKeyboardOnTheFoodTabAndBookedFromToday) {
    const QString idiom = GetParam() ? "pad" : "phone";
    AppHarness app({.pad = GetParam(), .firstTime = QString("no")});
    app.launch();
    const int32_t& consumed = AppState::shared().consumedValue;
    // What assistive technology reads of the row with the keyboard: its name, if it is selected.
    const auto focusedRow = [&] {
        QAccessibleInterface* node = app.focused() ? QAccessible::queryAccessibleInterface(app.focused()) : nullptr;
        return node && node->role() == QAccessible::ListItem && node->state().focused && node->state().selected
                   ? node->text(QAccessible::Name) : QString();
    };

    // The Food tab by keyboard: type, Tab past Cancel into the results (as the AT-SPI check
    // does), and back.
    ASSERT_TRUE(app.click("Food"));
    ASSERT_TRUE(app.click("Search"));
    app.type("banana,");
    app.key(Qt::Key_Tab);
    EXPECT_EQ(app.focused(), app.findByName("Cancel"));
    app.key(Qt::Key_Tab);
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
    EXPECT_EQ(app.findByName("Done"), nullptr);  // a calculator there, booking nothing

    // From Today's add menu with the mouse, the name typed key by key.
    ASSERT_TRUE(app.click("Today") && app.click("Add food") && app.click("Search for food"));
    ASSERT_TRUE(app.click("Search"));
    app.type("apple");
    auto* search = top<SearchFoodScreen>(0);
    ASSERT_NE(search, nullptr);
    ASSERT_NE(app.findByName("APPLEBEE'S, French fries"), nullptr);
    // Thousands of rows on the way ("a"), and a screenful of cells made for them.
    EXPECT_LT(search->searchFoodTable()->findChildren<TableViewCell*>().size(), 60);
    app.saveScreenshot(idiom + "-food-search");

    ASSERT_TRUE(app.click("Apple juice, canned or bottled, unsweetened, with added ascorbic acid"));
    food = top<FoodScreen>(0);
    ASSERT_NE(food, nullptr);
    EXPECT_NE(app.findByName("1 cup (248 g)"), nullptr);
    app.saveScreenshot(idiom + "-food-portion");

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
    EXPECT_EQ(food->selectPicker()->selectedRowInComponent(0), portions + 2);
    EXPECT_EQ(food->calorieAmt()->text(), QString::number((portions + 2) * 114 + fraction));
    const int32_t booked = int32_t(portions * 114 + (portions * 114 + fraction) +
                                   ((portions + 1) * 114 + fraction) + ((portions + 2) * 114 + fraction));
    EXPECT_EQ(consumed, booked);

    ASSERT_TRUE(app.click("Done"));
    ASSERT_TRUE(QTest::qWaitFor([] { return !StatusOverlay::shared().isShown(); }, 5000));
    EXPECT_EQ(tab(0)->viewControllers().size(), 1);
    EXPECT_NE(app.findByName(QString("%1 Cal").arg(booked)), nullptr);
    EXPECT_EQ(dayInFile(app.databasePath(), 0), std::to_string(booked) + " 0");
}

INSTANTIATE_TEST_SUITE_P(Idioms, Food, testing::Values(false, true),
                         [](const auto& info) { return info.param ? "Pad" : "Phone"; });
