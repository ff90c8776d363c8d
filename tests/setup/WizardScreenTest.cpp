// The set-up chain: titles and bar buttons of each step, the alert of an incomplete step, going
// back and forth, and the answers of the choice and weight steps.
#include <gtest/gtest.h>

#include "setup/BirthdayScreen.h"
#include "setup/EnterWtScreen.h"
#include "setup/GenderScreen.h"
#include "setup/GoalWeightScreen.h"
#include "setup/HeightScreen.h"
#include "setup/MeasureUnitScreen.h"
#include "setup/WizardApp.h"
#include "ui/Colors.h"

namespace {

// A choice control, tagged as the layouts tag them.
class Choice : public Button {
public:
    explicit Choice(int tag) { setTag(tag); }
};

// Answers a step the way its layout would, so that its "Next" goes on.
void answer(ViewController* step) {
    Choice first(0);
    if (auto* unit = qobject_cast<MeasureUnitScreen*>(step)) unit->selectunit(&first);
    if (auto* weight = qobject_cast<EnterWtScreen*>(step))
        weight->enterWtTxt()->setText("abc");  // only looked at for presence
    if (auto* goal = qobject_cast<GoalWeightScreen*>(step)) goal->enterGWtTxt()->setText("70");
    if (auto* gender = qobject_cast<GenderScreen*>(step)) gender->genderBtn(&first);
    if (auto* height = qobject_cast<HeightScreen*>(step))
        height->pickerViewTitleForRowForComponent(0, 0);  // the picker shows its rows
}

void next(WizardApp& app) {
    answer(app.nav()->topViewController());
    qobject_cast<WizardScreen*>(app.nav()->topViewController())->nextButton();
}

Button* barButton(BarButtonItem* item) {
    return item ? item->customView() : nullptr;
}

void expectBarButton(Button* button, const char* title, qreal width) {
    ASSERT_NE(button, nullptr) << title;
    EXPECT_EQ(button->title(), title);
    EXPECT_EQ(button->frame(), QRectF(0, 0, width, 38));
    EXPECT_EQ(button->titleColor(), redColor());
    EXPECT_FALSE(button->adjustsImageWhenHighlighted());
}

}  // namespace

TEST(WizardFlow, EachStepHasItsBarAndGoesOnOnlyWhenAnswered) {
    WizardApp app;
    app.start<MeasureUnitScreen>();
    const struct {
        const char* screen;
        const char* title;
        bool previous;
        const char* alert;  // null: no "Next"
    } steps[] = {{"MeasureUnitScreen", "", false, "Select one measuring unit"},
                 {"EnterWtScreen", "Starting Weight", true, "Enter Today's Weight"},
                 {"GoalWeightScreen", "Goal Weight", true, "Enter Goal Weight"},
                 {"GenderScreen", "Gender", true, "Select Gender"},
                 {"HeightScreen", "Height", true, "Enter Height"},
                 {"BirthdayScreen", "Birthday", true, nullptr}};
    for (int i = 0; i < 6; ++i) {
        const auto& step = steps[i];
        SCOPED_TRACE(step.screen);
        ViewController* screen = app.nav()->topViewController();
        ASSERT_EQ(app.nav()->viewControllers().size(), i + 1);
        EXPECT_STREQ(screen->metaObject()->className(), step.screen);
        EXPECT_EQ(screen->layoutName(), step.screen);
        EXPECT_EQ(screen->title(), step.title);
        NavigationItem* item = screen->navigationItem();
        if (step.previous) expectBarButton(barButton(item->leftBarButtonItem()), "Previous", 70);
        EXPECT_EQ(item->leftBarButtonItem() != nullptr, step.previous);
        EXPECT_EQ(item->rightBarButtonItem() != nullptr, step.alert != nullptr);
        // Steps 2 to 5 ask the navigation controller's own item, never the screen's.
        EXPECT_FALSE(item->hidesBackButton());
        EXPECT_EQ(app.nav()->navigationItem()->hidesBackButton(), i >= 1);
        if (!step.alert) break;

        // Blank weights are no answer either.
        if (auto* weight = qobject_cast<EnterWtScreen*>(screen))
            weight->enterWtTxt()->setText(" \t ");
        if (auto* goal = qobject_cast<GoalWeightScreen*>(screen))
            goal->enterGWtTxt()->setText("\t");
        Button* next = barButton(item->rightBarButtonItem());
        expectBarButton(next, "Next", 40);
        next->sendTouchUpInside();
        AlertView* alert = app.alert();
        ASSERT_NE(alert, nullptr);
        EXPECT_EQ(alert->title(), "Message");
        EXPECT_EQ(alert->message(), step.alert);
        EXPECT_EQ(alert->buttonTitles(), QStringList{"Ok"});
        EXPECT_EQ(app.nav()->topViewController(), screen);
        alert->clickButtonAtIndex(0);
        EXPECT_EQ(app.alert(), nullptr);

        answer(screen);
        next->sendTouchUpInside();
    }
    // The last step's "Next" does nothing at all.
    auto* birthday = app.top<BirthdayScreen>();
    birthday->nextButton();
    EXPECT_EQ(app.top<BirthdayScreen>(), birthday);
    EXPECT_EQ(app.alert(), nullptr);
}

TEST(WizardFlow, GoingBackKeepsAnswersButAFreshStepHasNoChoice) {
    WizardApp app;
    app.start<MeasureUnitScreen>();
    for (int i = 0; i < 3; ++i) next(app);
    auto* gender = app.top<GenderScreen>();
    ASSERT_NE(gender, nullptr);
    Choice female(1);
    gender->genderBtn(&female);
    gender->nextButton();
    ASSERT_NE(app.top<HeightScreen>(), nullptr);

    // Back to the same gender step, its mark as it was.
    barButton(app.top<HeightScreen>()->navigationItem()->leftBarButtonItem())->sendTouchUpInside();
    EXPECT_EQ(app.top<GenderScreen>(), gender);
    EXPECT_TRUE(gender->selectOne);
    EXPECT_EQ(gender->check2()->imageName(), "check");

    // Back once more and forward: a new gender step, nothing marked, although the answer stays.
    gender->previousButton();
    ASSERT_NE(app.top<GoalWeightScreen>(), nullptr);
    app.top<GoalWeightScreen>()->nextButton();
    auto* again = app.top<GenderScreen>();
    ASSERT_NE(again, nullptr);
    EXPECT_FALSE(again->selectOne);
    EXPECT_EQ(again->check1()->imageName(), "");
    EXPECT_EQ(AppState::shared().genderValue, 1);
    again->nextButton();
    ASSERT_NE(app.alert(), nullptr);
    EXPECT_EQ(app.alert()->message(), "Select Gender");
    EXPECT_EQ(app.top<GenderScreen>(), again);
}

TEST(ChoiceSteps, TheLastChoiceCountsAndIsTheOneMarked) {
    WizardApp app;
    LogCapture log;
    Choice first(0), second(1), other(7);
    auto* unit = app.start<MeasureUnitScreen>();
    unit->selectunit(&second);
    unit->selectunit(&first);
    EXPECT_TRUE(unit->selectOne);
    EXPECT_EQ(AppState::shared().measureUnit, "Metric");
    EXPECT_EQ(unit->check1()->imageName(), "check");
    EXPECT_EQ(unit->check2()->imageName(), "uncheck");

    auto* gender = app.start<GenderScreen>();
    gender->genderBtn(&other);  // any tag but 0 is the second choice
    EXPECT_EQ(AppState::shared().genderValue, 1);
    EXPECT_EQ(gender->check2()->imageName(), "check");
    EXPECT_EQ(gender->femaleLbl()->textColor(), redColor());
    EXPECT_EQ(gender->maleLbl()->textColor(), QColor(Qt::black));
    gender->genderBtn(&first);
    EXPECT_EQ(AppState::shared().genderValue, 0);
    EXPECT_EQ(gender->check1()->imageName(), "check");
    EXPECT_EQ(gender->maleLbl()->textColor(), redColor());
    EXPECT_EQ(gender->femaleLbl()->textColor(), QColor(Qt::black));

    // The gender step logs the unit words.
    EXPECT_EQ(log.lines(), (std::vector<std::string>{"Imperial", "Metric", "Imperial", "Metric"}));
}

TEST(WeightSteps, AskInTheChosenUnitAndTakeTheGoalsLeadingNumber) {
    for (const char* unit : {"Metric", "Imperial", ""}) {
        WizardApp app;
        AppState::shared().measureUnit = unit;
        auto* goal = app.start<GoalWeightScreen>();
        const QString word = std::string(unit) == "Metric" ? "Kilograms" : "Pounds";
        EXPECT_TRUE(goal->enterGWtTxt()->firstResponder()) << unit;
        EXPECT_EQ(goal->enterGWtTxt()->placeholder(), word) << unit;
        EXPECT_EQ(goal->wtLbl()->text(), word) << unit;
    }

    WizardApp app;
    const struct {
        const char* text;
        float goal;
    } cases[] = {{"  72.5kg", 72.5f}, {"70.3", 70.3f}, {"-5", -5.0f}, {"abc", 0.0f}};
    for (const auto& c : cases) {
        auto* goal = app.start<GoalWeightScreen>();
        AppState::shared().goalWeightValue = 99.0f;
        goal->enterGWtTxt()->setText(c.text);
        goal->nextButton();
        EXPECT_NE(app.top<GenderScreen>(), nullptr) << c.text;
        EXPECT_EQ(AppState::shared().goalWeightValue, c.goal) << c.text;
    }
}
