#include "setup/GenderScreen.h"

#include "setup/HeightScreen.h"
#include "store/AppState.h"
#include "store/DevLog.h"
#include "ui/Theme.h"

GenderScreen::GenderScreen(QObject* parent) : ChoiceScreen(parent) {
    maleLbl_.setText("Male");
    femaleLbl_.setText("Female");
}

void GenderScreen::viewDidLoad() {
    ChoiceScreen::viewDidLoad();
    setTitle("Gender");
    addBarButtons(Previous | Next);
    hideNavigationBackButton();
}

void GenderScreen::genderBtn(Button* sender) {
    const bool male = sender->tag() == 0;
    AppState::shared().genderValue = male ? 0 : 1;
    // The unit words are what this step has always logged for the two genders.
    DEVLOG("%s", male ? "Metric" : "Imperial");
    choose(male);
    maleLbl_.setTextColor(male ? Theme::tint() : Theme::text());
    femaleLbl_.setTextColor(male ? Theme::text() : Theme::tint());
}

void GenderScreen::nextButton() {
    if (selectOne) {
        pushStep<HeightScreen>();
    } else {
        showAlert("Select Gender");
    }
}
