// A first start on a fresh data folder, walked through the six set-up steps the way a person
// does it, on the real window drawn offscreen: tap the choices, type the weights, turn the
// wheels, press the birthday button. Every step is saved as a screenshot.
#include <gtest/gtest.h>

#include "app/TabBar.h"
#include "setup/BirthdayScreen.h"
#include "setup/CalorieBudget.h"
#include "store/AppState.h"
#include "support/AppHarness.h"

// The phone walks through in Metric as a man, the pad in Imperial as a woman.
class Wizard : public testing::TestWithParam<bool> {};

TEST_P(Wizard, FirstStartGoesThroughSixStepsToTheTabs) {
    const bool pad = GetParam();
    AppHarness app({.pad = pad});
    app.launch();
    const AppState& state = AppState::shared();
    const auto shotAndNext = [&](const char* step, const char* next = "Next") {
        app.saveScreenshot((pad ? "pad" : "phone") + QString("-wizard-") + step);
        return app.click(next);
    };
    const auto top = [&] { return app.window()->rootViewController()->topViewController(); };

    // 1: nothing chosen yet is answered by the alert.
    ASSERT_TRUE(app.click("Next"));
    ASSERT_NE(app.findByName("Select one measuring unit"), nullptr);
    ASSERT_TRUE(shotAndNext("0-alert", "Ok"));
    ASSERT_TRUE(app.click("Imperial"));
    ASSERT_TRUE(app.click(pad ? "Imperial" : "Metric"));
    EXPECT_EQ(state.measureUnit, pad ? "Imperial" : "Metric");
    ASSERT_TRUE(shotAndNext("1-unit"));

    // 2 and 3: the field has the keyboard at once, and the unit's word beside it.
    ASSERT_NE(app.findByName(pad ? "Pounds" : "Kilograms"), nullptr);
    app.type("80");
    ASSERT_TRUE(shotAndNext("2-weight"));
    app.type("70");
    ASSERT_TRUE(shotAndNext("3-goal"));
    EXPECT_EQ(state.goalWeightValue, 70.0f);

    ASSERT_TRUE(app.click(pad ? "Female" : "Male"));
    EXPECT_EQ(state.genderValue, pad ? 1 : 0);
    ASSERT_TRUE(shotAndNext("4-gender"));

    // 5: the wheels start on 40 cm, or on 1 foot 0 inches; the label shows what they stop on.
    ASSERT_TRUE(pad ? app.turn("1", 3) && app.turn("0", 2) : app.turn("40", 3));
    EXPECT_TRUE(pad ? state.heightFeet > 1 && state.heightInches > 0 : state.heightCm > 40);
    EXPECT_NE(app.findByName(
                  pad ? QString("%1 Feet %2 inch").arg(state.heightFeet).arg(state.heightInches)
                      : QString("%1 cm").arg(state.heightCm)),
              nullptr);
    ASSERT_TRUE(shotAndNext("5-height"));

    // 6: an earlier year on the year wheel, then the button.
    auto* birthday = qobject_cast<BirthdayScreen*>(top());
    ASSERT_NE(birthday, nullptr);
    const int startYear = birthday->datePicker()->year();
    ASSERT_TRUE(app.turn(QString::number(startYear), -2));
    const int year = birthday->datePicker()->year();
    EXPECT_LT(year, startYear);
    ASSERT_TRUE(shotAndNext("6-birthday", "Start my plan"));

    // The tab interface, over the wizard, with the budget of the answers given on the way.
    EXPECT_NE(qobject_cast<TabBar*>(top()), nullptr);
    EXPECT_NE(app.findByName("Today"), nullptr);
    app.saveScreenshot(pad ? "pad-wizard-7-tabs" : "phone-wizard-7-tabs");
    EXPECT_EQ(birthday->age, calendarDay(Clock::now()).year - year);
    EXPECT_EQ(queryColumn(app.databasePath(), "SELECT calorieBudget FROM profileData WHERE id = 2"),
              std::vector<std::string>{std::to_string(calorieBudget(state, birthday->age))});
}

INSTANTIATE_TEST_SUITE_P(Idioms, Wizard, testing::Values(false, true),
                         [](const auto& info) { return info.param ? "Pad" : "Phone"; });
