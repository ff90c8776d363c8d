// A first start on a fresh data folder, walked through the six set-up steps on the phone's real
// window drawn offscreen with the keyboard alone: Tab, Space and Return, typing, arrow and page
// keys on the wheels. (The AT-SPI check walks it by accessible actions, with the alert, checked
// marks, stored budget and the wizard left unreachable beneath the tabs.)
#include <gtest/gtest.h>

#include <QAccessible>
#include <QQuickItem>

#include "app/tabs/TabBar.h"
#include "setup/BirthdayScreen.h"
#include "store/AppState.h"
#include "support/AppHarness.h"

TEST(Wizard, FirstStartGoesThroughSixStepsToTheTabsByKeyboard) {
    AppHarness app;
    app.launch();
    const AppState& state = AppState::shared();
    const auto press = [&](const QString& name) {  // Tab to it and Space
        if (!app.tabTo(name)) return false;
        app.key(Qt::Key_Space);
        app.settle();
        return true;
    };
    const auto top = [&] { return app.window()->rootViewController()->topViewController(); };

    // 1: nothing chosen yet is answered by the alert, which has the keyboard until it goes.
    ASSERT_TRUE(press("Next"));
    ASSERT_NE(app.findByName("Message"), nullptr);
    app.key(Qt::Key_Return);
    app.settle();
    EXPECT_EQ(app.findByName("Message"), nullptr);
    EXPECT_EQ(app.focused(), app.findByName("Next"));
    ASSERT_TRUE(press("Imperial") && press("Metric"));
    EXPECT_EQ(state.measureUnit, "Metric");
    app.saveScreenshot("phone-wizard-1-unit");
    ASSERT_TRUE(press("Next"));

    // 2 and 3: the field has the keyboard at once.
    app.type("80");
    ASSERT_TRUE(press("Next"));
    app.type("70");
    ASSERT_TRUE(press("Next") && press("Male"));
    EXPECT_EQ(std::tuple(state.goalWeightValue, state.genderValue), std::tuple(70.0f, 0));
    ASSERT_TRUE(press("Next"));

    // 5: the wheel starts on 40 cm, which placing it did not record; each key records the row
    // it settles on.
    EXPECT_EQ(state.heightCm, 0);
    ASSERT_TRUE(app.tabTo("Height"));
    app.key(Qt::Key_Down, 5);
    EXPECT_EQ(state.heightCm, 45);
    app.key(Qt::Key_PageDown, 26);  // five rows a page
    EXPECT_EQ(state.heightCm, 175);
    app.saveScreenshot("phone-wizard-5-height");
    ASSERT_TRUE(press("Next"));

    // 6: two years earlier by keys; a notch of the mouse wheel turns the day a row.
    auto* birthday = qobject_cast<BirthdayScreen*>(top());
    ASSERT_NE(birthday, nullptr);
    DatePicker* picker = birthday->datePicker();
    const int year = picker->year() - 2;
    ASSERT_TRUE(app.tabTo("Year"));
    app.key(Qt::Key_Up, 2);
    EXPECT_EQ(picker->year(), year);
    const int day = picker->day();
    QQuickItem* dayWheel = app.findByName("Day");
    ASSERT_NE(dayWheel, nullptr);
    app.scroll(dayWheel->mapToScene(dayWheel->boundingRect().center()), day > 1 ? -1 : 1);
    EXPECT_EQ(picker->day(), day > 1 ? day - 1 : day + 1);
    ASSERT_TRUE(press("Start my plan"));
    EXPECT_EQ(birthday->age, calendarDay(Clock::now()).year - year);
    EXPECT_NE(qobject_cast<TabBar*>(top()), nullptr);

    // The add menu, reached by Tab, is a dialog over the tabs, which Escape cancels, giving the
    // keyboard back.
    ASSERT_TRUE(press("Add food"));
    QQuickItem* sheet = app.findByName("Select Option");
    ASSERT_NE(sheet, nullptr);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(sheet)->role(), QAccessible::Dialog);
    EXPECT_EQ(app.findByName("Add exercise"), nullptr);
    app.key(Qt::Key_Escape);
    app.settle();
    EXPECT_EQ(app.findByName("Search for food"), nullptr);
    EXPECT_EQ(app.focused(), app.findByName("Add food"));
}
