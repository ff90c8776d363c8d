// A first start on a fresh data folder, walked through the six set-up steps on the real window
// drawn offscreen: on the phone with the keyboard alone (Tab, Space and Return, typing, arrow and
// page keys on the wheels), on the pad with the pointer (taps and drags). Both end in the tabs
// with what the answers give, and nothing of the wizard reachable beneath them. Every step is
// saved as a screenshot.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QQuickItem>

#include "app/tabs/TabBar.h"
#include "setup/BirthdayScreen.h"
#include "setup/CalorieBudget.h"
#include "store/AppState.h"
#include "support/AppHarness.h"

namespace {

QPointF centre(const QQuickItem* item) {
    return item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
}

QAccessibleInterface* accessible(AppHarness& app, const QString& name) {
    QQuickItem* item = app.findByName(name);
    return item ? QAccessible::queryAccessibleInterface(item) : nullptr;
}

}  // namespace

// The phone walks through in Metric as a man with the keyboard, the pad in Imperial as a woman
// with the pointer.
class Wizard : public testing::TestWithParam<bool> {};

TEST_P(Wizard, FirstStartGoesThroughSixStepsToTheTabs) {
    const bool pad = GetParam();
    AppHarness app({.pad = pad});
    app.launch();
    const AppState& state = AppState::shared();
    // A control pressed as this idiom's person does: Tab to it and Space, or a tap.
    const auto press = [&](const QString& name) {
        if (pad) return app.click(name);
        if (!app.tabTo(name)) return false;
        app.key(Qt::Key_Space);
        app.settle();
        return true;
    };
    const auto shotAndNext = [&](const char* step) {
        app.saveScreenshot((pad ? "pad" : "phone") + QString("-wizard-") + step);
        return press("Next");
    };
    const auto top = [&] { return app.window()->rootViewController()->topViewController(); };

    // 1: nothing chosen yet is answered by the alert, which has the keyboard until it goes.
    ASSERT_TRUE(press("Next"));
    QAccessibleInterface* alert = accessible(app, "Message");
    ASSERT_NE(alert, nullptr);
    EXPECT_EQ(alert->role(), QAccessible::AlertMessage);
    EXPECT_EQ(alert->text(QAccessible::Description), "Select one measuring unit");
    app.saveScreenshot((pad ? "pad" : "phone") + QString("-wizard-0-alert"));
    EXPECT_EQ(app.findByName("Metric"), nullptr);  // nothing beneath it is reachable
    if (pad) {
        ASSERT_TRUE(app.click("Ok"));
    } else {
        app.key(Qt::Key_Return);
        app.settle();
        EXPECT_EQ(app.focused(), app.findByName("Next"));
    }
    EXPECT_EQ(app.findByName("Message"), nullptr);

    ASSERT_TRUE(press("Imperial"));
    ASSERT_TRUE(press(pad ? "Imperial" : "Metric"));
    EXPECT_EQ(state.measureUnit, pad ? "Imperial" : "Metric");
    EXPECT_TRUE(accessible(app, pad ? "Imperial" : "Metric")->state().checked);
    EXPECT_FALSE(accessible(app, pad ? "Metric" : "Imperial")->state().checked);
    ASSERT_TRUE(shotAndNext("1-unit"));

    // 2 and 3: the field has the keyboard at once, and the unit's word beside it.
    ASSERT_NE(app.findByName(pad ? "Pounds" : "Kilograms"), nullptr);
    app.type("80");
    ASSERT_TRUE(shotAndNext("2-weight"));
    app.type("70");
    ASSERT_TRUE(shotAndNext("3-goal"));
    EXPECT_EQ(state.goalWeightValue, 70.0f);

    ASSERT_TRUE(press(pad ? "Female" : "Male"));
    EXPECT_EQ(state.genderValue, pad ? 1 : 0);
    ASSERT_TRUE(shotAndNext("4-gender"));

    // 5: the wheels start on 40 cm, or on 1 foot 0 inches, which placing them did not record;
    // the label shows the row each turn settles on.
    EXPECT_EQ(std::tuple(state.heightCm, state.heightFeet, state.heightInches),
              std::tuple(0, 0, 0));
    if (pad) {
        ASSERT_TRUE(app.turn("Feet", 3) && app.turn("Inches", 2));
        EXPECT_TRUE(state.heightFeet > 1 && state.heightInches > 0);
    } else {
        ASSERT_TRUE(app.tabTo("Height"));
        app.key(Qt::Key_Down, 5);
        EXPECT_EQ(state.heightCm, 45);
        app.key(Qt::Key_PageDown, 26);  // five rows a page
        EXPECT_EQ(state.heightCm, 175);
    }
    EXPECT_NE(app.findByName(
                  pad ? QString("%1 Feet %2 inch").arg(state.heightFeet).arg(state.heightInches)
                      : QString("%1 cm").arg(state.heightCm)),
              nullptr);
    ASSERT_TRUE(shotAndNext("5-height"));

    // 6: an earlier year on the year wheel, then the button.
    auto* birthday = qobject_cast<BirthdayScreen*>(top());
    ASSERT_NE(birthday, nullptr);
    const int startYear = birthday->datePicker()->year();
    if (pad) {
        ASSERT_TRUE(app.turn("Year", -2));
        const int day = birthday->datePicker()->day();  // a notch of the mouse wheel turns a row
        app.scroll(centre(app.findByName("Day")), day > 1 ? -1 : 1);
        EXPECT_EQ(birthday->datePicker()->day(), day > 1 ? day - 1 : day + 1);
    } else {
        ASSERT_TRUE(app.tabTo("Year"));
        app.key(Qt::Key_Up, 2);
        EXPECT_EQ(birthday->datePicker()->year(), startYear - 2);
    }
    const int year = birthday->datePicker()->year();
    EXPECT_LT(year, startYear);
    app.saveScreenshot((pad ? "pad" : "phone") + QString("-wizard-6-birthday"));
    ASSERT_TRUE(press("Start my plan"));

    // The tab interface, over the wizard, with the budget of the answers given on the way; the
    // wizard beneath it is neither shown to assistive technology nor reached by Tab.
    EXPECT_NE(qobject_cast<TabBar*>(top()), nullptr);
    EXPECT_NE(app.findByName("Today"), nullptr);
    app.saveScreenshot(pad ? "pad-wizard-7-tabs" : "phone-wizard-7-tabs");
    for (const char* wizard :
         {"‹ Back", "Previous", "Year", "Start my plan", "When were you born?"})
        EXPECT_EQ(app.findByName(wizard), nullptr) << wizard;
    if (!pad) {
        EXPECT_TRUE(app.tabTo("Today"));
        // The add menu is a dialog over the tabs; Escape cancels it.
        ASSERT_TRUE(press("Add food"));
        QAccessibleInterface* sheet = accessible(app, "Select Option");
        ASSERT_NE(sheet, nullptr);
        EXPECT_EQ(sheet->role(), QAccessible::Dialog);
        EXPECT_EQ(app.findByName("Add exercise"), nullptr);
        app.key(Qt::Key_Escape);
        app.settle();
        EXPECT_EQ(app.findByName("Search for food"), nullptr);
        EXPECT_EQ(app.focused(), app.findByName("Add food"));
    }
    EXPECT_EQ(birthday->age, calendarDay(Clock::now()).year - year);
    EXPECT_EQ(queryColumn(app.databasePath(), "SELECT calorieBudget FROM profileData WHERE id = 2"),
              std::vector<std::string>{std::to_string(calorieBudget(state, birthday->age))});
}

INSTANTIATE_TEST_SUITE_P(Idioms, Wizard, testing::Values(false, true),
                         [](const auto& info) { return info.param ? "Pad" : "Phone"; });
