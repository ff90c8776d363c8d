#include "setup/ChoiceScreen.h"

ChoiceScreen::ChoiceScreen(QObject* parent) : WizardScreen(parent) {
    check1_.setImageName("uncheck");
    check2_.setImageName("uncheck");
}

void ChoiceScreen::choose(bool first) {
    selectOne = true;
    check1_.setImageName(first ? "check" : "uncheck");
    check2_.setImageName(first ? "uncheck" : "check");
}
