// Booking food the way a person does it in the real window, drawn offscreen: the Food tab's search
// by keyboard alone, which opens a calculator; then from Today's add menu, a name typed key by key,
// a food picked, the wheels turned, "Done". And the results flicked by mouse and finger.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QQuickItem>
#include <QTest>

#include "food/FoodScreen.h"
#include "food/SearchFoodScreen.h"
#include "support/AppHarness.h"
#include "ui/Finger.h"

namespace {

class Food : public testing::TestWithParam<bool> {};

}  // namespace

TEST_P(Food, ResultsWalkedByKeyboardOnTheFoodTabAndBookedFromToday) {
    const QString idiom = GetParam() ? "pad" : "phone";
    AppHarness app({.pad = GetParam(), .firstTime = QString("no")});
    app.launch();
    // What assistive technology reads of the row with the keyboard: its name, if it is selected.
    const auto focusedRow = [&] {
        QAccessibleInterface* node = app.focused() ? QAccessible::queryAccessibleInterface(app.focused()) : nullptr;
        return node && node->role() == QAccessible::ListItem && node->state().focused && node->state().selected
                   ? node->text(QAccessible::Name) : QString();
    };

    // The Food tab by keyboard: type, Tab past Cancel into the results (as the AT-SPI check
    // does), and back.
    ASSERT_TRUE(app.click("Food") && app.click("Search"));
    app.type("banana,");
    app.key(Qt::Key_Tab);
    EXPECT_EQ(app.focused(), app.findByName("Cancel"));
    app.key(Qt::Key_Tab);
    // Back in the field, typing goes on there while the rows change beneath it.
    app.key(Qt::Key_Backtab, 2);
    app.type(" r");
    // Tab goes on past the table, and back into it at its first row on screen.
    app.key(Qt::Key_Tab, 3);
    EXPECT_EQ(app.focused(), app.findByName("Today"));
    app.key(Qt::Key_Backtab);
    EXPECT_EQ(focusedRow(), "Pepper, banana, raw");
    app.key(Qt::Key_Down);
    EXPECT_EQ(focusedRow(), "Puddings, banana, ready-to-eat");
    app.key(Qt::Key_Return);
    app.settle();
    auto* food = qobject_cast<FoodScreen*>(tab(1)->topViewController());
    ASSERT_NE(food, nullptr);
    EXPECT_EQ(food->item, "Puddings, banana, ready-to-eat");
    EXPECT_EQ(app.findByName("Done"), nullptr);  // a calculator there, booking nothing

    // From Today's add menu with the mouse, the name typed key by key.
    ASSERT_TRUE(app.click("Today") && app.click("Add food") && app.click("Search for food") &&
                app.click("Search"));
    app.type("apple");
    auto* search = qobject_cast<SearchFoodScreen*>(tab(0)->topViewController());
    ASSERT_NE(search, nullptr);
    // Thousands of rows on the way ("a"), and a screenful of cells made for them.
    EXPECT_LT(search->searchFoodTable()->findChildren<TableViewCell*>().size(), 60);
    app.saveScreenshot(idiom + "-food-search");

    ASSERT_TRUE(app.click("Apple juice, canned or bottled, unsweetened, with added ascorbic acid"));
    food = qobject_cast<FoodScreen*>(tab(0)->topViewController());
    ASSERT_NE(food, nullptr);
    EXPECT_NE(app.findByName("1 cup (248 g)"), nullptr);
    app.saveScreenshot(idiom + "-food-portion");

    // Two flicks and two arrow keys: four settled turns, each booking what it shows then.
    ASSERT_TRUE(app.turn("Portions", 2));
    const int64_t portions = food->selectPicker()->selectedRowInComponent(0);
    ASSERT_TRUE(app.turn("Fraction", 4));
    const int64_t fraction = 114 * food->selectPicker()->selectedRowInComponent(1) / 8;
    EXPECT_EQ(food->calorieAmt()->text(), QString::number(portions * 114 + fraction));
    ASSERT_TRUE(app.tabTo("Portions"));
    app.key(Qt::Key_Down, 2);
    EXPECT_EQ(food->calorieAmt()->text(), QString::number((portions + 2) * 114 + fraction));
    const int32_t booked = int32_t(portions * 114 + (portions * 114 + fraction) +
                                   ((portions + 1) * 114 + fraction) + ((portions + 2) * 114 + fraction));

    ASSERT_TRUE(app.click("Done"));
    ASSERT_TRUE(overlayGone());
    EXPECT_NE(app.findByName(QString("%1 Cal").arg(booked)), nullptr);
    EXPECT_EQ(dayInFile(app.databasePath(), 0), std::to_string(booked) + " 0");
}

INSTANTIATE_TEST_SUITE_P(Idioms, Food, testing::Values(false, true),
                         [](const auto& info) { return info.param ? "Pad" : "Phone"; });

// On a Linux phone's window a flick, by mouse or finger, carries the results on past the pointer's
// travel either way and picks nothing; a tap, wandering a little, picks the row under it.
TEST(FoodResults, FlickedTheyScrollAndOnlyATapPicks) {
    AppHarness app({.firstTime = QString("no"), .window = kPhoneWindow});
    app.launch();
    Finger finger(app);
    // The canvas takes the window's whole height: the tabs sit at its bottom edge.
    QQuickItem* more = app.findByName("More");
    ASSERT_NE(more, nullptr);
    EXPECT_NEAR(more->mapRectToScene(more->boundingRect()).bottom(), kPhoneWindow.height(), 1);

    ASSERT_TRUE(finger.tap("Food") && finger.tap("Search"));
    app.type("a");
    auto* search = qobject_cast<SearchFoodScreen*>(tab(1)->topViewController());
    ASSERT_NE(search, nullptr);
    QQuickItem* list = app.findByName(QString::fromStdString(search->searchresultID.at(0)));
    while (list && !list->inherits("QQuickListView")) list = list->parentItem();
    ASSERT_NE(list, nullptr);
    const auto contentY = [list] { return list->property("contentY").toReal(); };
    const qreal travel = list->mapRectFromScene(QRectF(0, 0, 1, 200)).height();
    // Past the travel only by the speed it leaves; the glide need not end, as the next touch
    // stops it.
    const auto carriedOn = [&](qreal from) {
        return QTest::qWaitFor([&] { return contentY() - from > travel; }, 3000);
    };
    const auto flick = [&](QPointF from, QPointF to) {
        finger.down(from);
        const qreal before = contentY();
        finger.moveTo(to);
        finger.up();
        return before;
    };

    QQuickWindow* window = app.quickWindow();
    const qreal beforeMouse = contentY();
    QTest::mousePress(window, Qt::LeftButton, {}, QPoint(180, 600));
    for (int i = 1; i <= 5; ++i) QTest::mouseMove(window, QPoint(180, 600 - 40 * i), 16);
    QTest::mouseRelease(window, Qt::LeftButton, {}, QPoint(180, 400), 16);
    EXPECT_TRUE(carriedOn(beforeMouse));
    EXPECT_TRUE(carriedOn(flick(QPointF(180, 600), QPointF(180, 400))));
    const qreal before = flick(QPointF(180, 400), QPointF(180, 600));
    ASSERT_TRUE(atRest(list));
    EXPECT_GT(before - contentY(), travel);
    EXPECT_EQ(search->searchFoodTable()->indexPathForSelectedRow(), std::nullopt);

    int index = -1;
    QMetaObject::invokeMethod(list, "indexAt", Q_RETURN_ARG(int, index), Q_ARG(qreal, 10),
                              Q_ARG(qreal, contentY() + list->height() / 2));
    const QString name = QString::fromStdString(search->searchresultID.at(index));
    QQuickItem* row = app.findByName(name);
    ASSERT_NE(row, nullptr);
    finger.tap(centre(row), QPointF(3, 2));
    auto* food = qobject_cast<FoodScreen*>(tab(1)->topViewController());
    ASSERT_NE(food, nullptr);
    EXPECT_EQ(QString::fromStdString(food->item), name);
}
