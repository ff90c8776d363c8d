// The set-up chain: each step's bar buttons and the alert of an incomplete step, and the answers
// the choice and weight steps record.
#include <gtest/gtest.h>

#include "setup/EnterWtScreen.h"
#include "setup/GenderScreen.h"
#include "setup/GoalWeightScreen.h"
#include "setup/HeightScreen.h"
#include "setup/MeasureUnitScreen.h"
#include "setup/WizardApp.h"
#include "ui/Theme.h"

TEST(WizardFlow, EachStepGoesOnOnlyWhenAnsweredAndPreviousGoesBack) {
    const auto bar = [](ViewController* step, bool next) {
        NavigationItem* item = step->navigationItem();
        BarButtonItem* button = next ? item->rightBarButtonItem() : item->leftBarButtonItem();
        return button ? button->customView() : nullptr;
    };
    WizardApp app;
    app.start<MeasureUnitScreen>();
    const char* const steps[][3] = {{"MeasureUnitScreen", "", "Select one measuring unit"},
                                    {"EnterWtScreen", "Starting Weight", "Enter Today's Weight"},
                                    {"GoalWeightScreen", "Goal Weight", "Enter Goal Weight"},
                                    {"GenderScreen", "Gender", "Select Gender"},
                                    {"HeightScreen", "Height", "Enter Height"},
                                    {"BirthdayScreen", "Birthday", nullptr}};  // no "Next"
    for (int i = 0; i < 6; ++i) {
        const auto [name, title, missing] = steps[i];
        SCOPED_TRACE(name);
        ViewController* screen = app.nav()->topViewController();
        ASSERT_EQ(app.nav()->viewControllers().size(), i + 1);
        EXPECT_STREQ(screen->metaObject()->className(), name);
        EXPECT_EQ(screen->title(), title);
        EXPECT_EQ(bar(screen, false) ? bar(screen, false)->title() : "", i ? "Previous" : "");
        EXPECT_EQ(bar(screen, true) ? bar(screen, true)->title() : "", missing ? "Next" : "");
        EXPECT_EQ(app.nav()->navigationItem()->hidesBackButton(), i > 0);
        if (!missing) break;

        auto* weight = qobject_cast<EnterWtScreen*>(screen);
        auto* goal = qobject_cast<GoalWeightScreen*>(screen);
        TextField* field = weight ? weight->enterWtTxt() : goal ? goal->enterGWtTxt() : nullptr;
        if (field) {
            // Asked in the unit chosen at step 1, "Imperial", with the keyboard up at once.
            Label* unitWord = qobject_cast<WeightScreen*>(screen)->wtLbl();
            EXPECT_EQ(std::tuple(field->placeholder(), unitWord->text(), field->firstResponder(),
                                 field->keyboardType()),
                      std::tuple("Pounds", "Pounds", true, TextField::KeyboardType::DecimalPad));
            field->setText(" \t ");  // blanks are no answer
        }
        bar(screen, true)->sendTouchUpInside();
        AlertView* alert = app.alert();
        ASSERT_NE(alert, nullptr);
        EXPECT_EQ(std::tuple(alert->title(), alert->message(), alert->buttonTitles()),
                  std::tuple("Message", missing, QStringList{"Ok"}));
        alert->clickButtonAtIndex(0);
        EXPECT_EQ(app.nav()->topViewController(), screen);

        // Answered as the layouts would; the goal is the untrimmed text's leading number.
        Button second;  // the choice control tagged 1
        second.setTag(1);
        if (auto* unit = qobject_cast<MeasureUnitScreen*>(screen)) unit->selectunit(&second);
        if (auto* gender = qobject_cast<GenderScreen*>(screen)) gender->genderBtn(&second);
        if (auto* height = qobject_cast<HeightScreen*>(screen))
            height->pickerViewTitleForRowForComponent(0, 0);  // the picker shows its rows
        if (field) field->setText("  72.5kg");
        bar(screen, true)->sendTouchUpInside();
    }
    EXPECT_EQ(AppState::shared().goalWeightValue, 72.5f);
    bar(app.nav()->topViewController(), false)->sendTouchUpInside();
    EXPECT_NE(app.top<HeightScreen>(), nullptr);
    EXPECT_EQ(app.nav()->viewControllers().size(), 5);
}

TEST(ChoiceSteps, NothingIsMarkedAtFirstThenTag0IsTheFirstAnswerAnyOtherTheSecond) {
    WizardApp app;
    LogCapture log;
    auto* unit = app.start<MeasureUnitScreen>();
    auto* gender = new GenderScreen;
    EXPECT_FALSE(app.nav()->navigationItem()->hidesBackButton());
    app.nav()->pushViewController(gender, false);
    EXPECT_TRUE(app.nav()->navigationItem()->hidesBackButton());
    EXPECT_EQ(gender->maleLbl()->text() + gender->femaleLbl()->text(), "MaleFemale");
    for (ChoiceScreen* screen : std::initializer_list<ChoiceScreen*>{unit, gender}) {
        EXPECT_FALSE(screen->selectOne);
        EXPECT_EQ(screen->check1()->imageName() + screen->check2()->imageName(), "uncheckuncheck");
    }
    for (int tag : {7, 0}) {
        Button choice;
        choice.setTag(tag);
        unit->selectunit(&choice);
        gender->genderBtn(&choice);
        const bool first = tag == 0;
        for (ChoiceScreen* screen : std::initializer_list<ChoiceScreen*>{unit, gender}) {
            EXPECT_TRUE(screen->selectOne);
            EXPECT_EQ(screen->check1()->imageName(), first ? "check" : "uncheck") << tag;
            EXPECT_EQ(screen->check2()->imageName(), first ? "uncheck" : "check") << tag;
        }
        EXPECT_EQ(AppState::shared().measureUnit, first ? "Metric" : "Imperial");
        EXPECT_EQ(AppState::shared().genderValue, first ? 0 : 1);
        EXPECT_EQ(gender->maleLbl()->textColor(), first ? Theme::tint() : Theme::text());
        EXPECT_EQ(gender->femaleLbl()->textColor(), first ? Theme::text() : Theme::tint());
    }
    // The gender step logs the unit words too.
    EXPECT_EQ(log.lines(), (std::vector<std::string>{"Imperial", "Imperial", "Metric", "Metric"}));
}
