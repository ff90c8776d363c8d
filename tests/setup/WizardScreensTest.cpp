// The set-up steps driven through their outlets and actions over the real store: the alert of an
// unanswered step, the answers each step records, and the plan the last one writes. The keyboard,
// finger and AT-SPI walks go through the same steps in the real window.
#include <gtest/gtest.h>

#include "app/tabs/TabBar.h"
#include "setup/BirthdayScreen.h"
#include "setup/EnterWtScreen.h"
#include "setup/GenderScreen.h"
#include "setup/GoalWeightScreen.h"
#include "setup/HeightScreen.h"
#include "setup/MeasureUnitScreen.h"
#include "setup/WizardApp.h"

// An unanswered step says what it lacks and stays; answered, it goes on. A choice tagged other
// than 0 is the second answer; the weights are asked in the unit chosen.
TEST(WizardSteps, EachStepGoesOnOnlyWhenAnsweredAndPreviousGoesBack) {
    WizardApp app;
    app.start<MeasureUnitScreen>();
    const auto press = [&](bool next) {
        NavigationItem* item = app.nav()->topViewController()->navigationItem();
        BarButtonItem* button = next ? item->rightBarButtonItem() : item->leftBarButtonItem();
        button->customView()->sendTouchUpInside();
    };
    const char* const missing[] = {"Select one measuring unit", "Enter Today's Weight",
                                   "Enter Goal Weight", "Select Gender", "Enter Height"};
    // What a screen reader announces as each step comes up.
    const char* const titles[] = {"Starting Weight", "Goal Weight", "Gender", "Height", "Birthday"};
    for (int i = 0; i < 5; ++i) {
        ViewController* screen = app.nav()->topViewController();
        SCOPED_TRACE(screen->metaObject()->className());
        auto* weight = qobject_cast<EnterWtScreen*>(screen);
        auto* goal = qobject_cast<GoalWeightScreen*>(screen);
        TextField* field = weight ? weight->enterWtTxt() : goal ? goal->enterGWtTxt() : nullptr;
        if (field) {
            EXPECT_EQ(field->placeholder(), "Pounds");
            field->setText(" \t ");  // blanks are no answer
        }
        press(true);
        AlertView* alert = app.alert();
        ASSERT_NE(alert, nullptr);
        EXPECT_EQ(std::tuple(alert->title(), alert->message()), std::tuple("Message", missing[i]));
        alert->clickButtonAtIndex(0);
        EXPECT_EQ(app.nav()->topViewController(), screen);

        // Answered as the layouts would; the goal is the untrimmed text's leading number.
        Button other;
        other.setTag(7);  // any tag but 0: the second answer
        auto* choice = qobject_cast<ChoiceScreen*>(screen);
        const auto ticks = [choice] {  // the check marks of a choice step, nothing ticked at first
            return choice ? choice->check1()->imageName() + " " + choice->check2()->imageName()
                          : QString();
        };
        EXPECT_EQ(ticks(), choice ? "uncheck uncheck" : "");
        if (auto* unit = qobject_cast<MeasureUnitScreen*>(screen)) unit->selectunit(&other);
        if (auto* gender = qobject_cast<GenderScreen*>(screen)) gender->genderBtn(&other);
        EXPECT_EQ(ticks(), choice ? "uncheck check" : "");
        if (auto* height = qobject_cast<HeightScreen*>(screen))
            height->pickerViewTitleForRowForComponent(0, 0);  // the picker shows its rows
        if (field) field->setText("  72.5kg");
        press(true);
        EXPECT_EQ(app.nav()->viewControllers().size(), i + 2);
        EXPECT_EQ(app.nav()->topViewController()->title(), titles[i]);
    }
    EXPECT_EQ(std::tuple(AppState::shared().goalWeightValue, AppState::shared().genderValue),
              std::tuple(72.5f, 1));
    press(false);  // from the birthday step
    EXPECT_NE(qobject_cast<HeightScreen*>(app.nav()->topViewController()), nullptr);
}

// With no unit, as with Imperial, the wheels are feet and inches; only a row the user turns to is
// recorded, the unit columns change nothing. (The metric wheel is the walks'.)
TEST(WizardSteps, HeightInFeetAndInchesRecordsOnlyARowTheUserChooses) {
    WizardApp app;
    AppState& state = AppState::shared();
    std::tie(state.heightCm, state.heightFeet, state.heightInches) = std::tuple(180, 5, 9);
    auto* screen = app.start<HeightScreen>();
    PickerView* picker = screen->selectPicker();
    EXPECT_EQ(picker->rowCounts(), (QList<int>{8, 1, 12, 1}));
    const auto height = [&] {
        return std::tuple(screen->htLbl()->text(), state.heightCm, state.heightFeet,
                          state.heightInches);
    };
    // A wheel turned by code tells nobody: an earlier visit's height stays.
    picker->selectRow(3, 0, true);
    EXPECT_EQ(height(), std::tuple("", 180, 5, 9));
    // Row and column turned to; then the label, heightCm, heightFeet and heightInches.
    for (const auto& [row, column, label, cm, feet, inches] :
         {std::tuple{7, 2, "1 Feet 7 inch", 180, 1, 7},  // with the feet the picker starts on
          {5, 0, "6 Feet 7 inch", 180, 6, 7}, {3, 2, "6 Feet 3 inch", 180, 6, 3},
          {0, 1, "6 Feet 3 inch", 180, 6, 3}, {0, 3, "6 Feet 3 inch", 180, 6, 3}}) {
        picker->userSelectedRow(row, column);
        EXPECT_EQ(height(), std::tuple(label, cm, feet, inches)) << row << "," << column;
    }
}

TEST(WizardSteps, SelectDateFinishesSetUpInOnePressAndAgainOnTheNext) {
    // Half past midnight in New York, days of exactly 86,400 seconds show the clock changes:
    // 1 November comes twice and 14 March never. No unit counts as Imperial.
    const struct {
        const char *zone, *now, *unit;
        float goal;
        int feet, inches;
        const char *budget, *days;  // days: the labels of rows 0, 1, 2, 134 and 135
    } cases[] = {{"UTC", "2026-11-15 09:30:00", "Metric", 70.3f, 0, 0, "1707",
                  "Sunday November 15|Monday November 16|Tuesday November 17|Monday March 29|"
                  "Tuesday March 30"},
                 {"America/New_York", "2026-10-31 04:30:00", "", 160.0f, 5, 10, "1750",
                  "Saturday October 31|Sunday November 1|Sunday November 1|Saturday March 13|"
                  "Monday March 15"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.zone);
        ScopedTimeZone zone(c.zone);
        FixedClock clock(utc(c.now));
        WizardApp app;
        AppState& state = AppState::shared();
        state.measureUnit = c.unit;
        state.goalWeightValue = c.goal;
        std::tie(state.heightCm, state.heightFeet, state.heightInches) =
            std::tuple(175, c.feet, c.inches);
        auto* screen = app.start<BirthdayScreen>();
        screen->datePicker()->setYearMonthDay(1996, 12, 30);
        screen->selectDate(nullptr);
        const std::string db = app.databasePath();
        EXPECT_EQ(queryColumn(db, "SELECT calorieBudget || ' ' || startingDate FROM profileData "
                                  "WHERE id = 2"),
                  std::vector<std::string>{c.budget + std::string(" ") + c.now + " +0000"});
        EXPECT_EQ(app.firstTimeOnDisk(), "no");

        // One plan: ids 0 to 365, labelled with the local days 86,400 seconds apart.
        const char* kIds = "SELECT count(*) || ' ' || min(id) || ' ' || max(id) FROM dailyData "
                           "WHERE id >= 0";  // not id -1
        EXPECT_EQ(queryColumn(db, kIds), std::vector<std::string>{"366 0 365"});
        QStringList seen;
        for (const std::string& label : queryColumn(db, "SELECT date FROM dailyData WHERE id IN "
                                                        "(0, 1, 2, 134, 135) ORDER BY rowid"))
            seen << QString::fromStdString(label);
        EXPECT_EQ(seen.join('|'), c.days);
        // The tab interface, over the wizard.
        EXPECT_NE(qobject_cast<TabBar*>(app.nav()->topViewController()), nullptr);

        // Each press runs it all again: another plan of 366 days.
        screen->selectDate(nullptr);
        EXPECT_EQ(queryColumn(db, kIds), std::vector<std::string>{"732 0 365"});
    }
}
