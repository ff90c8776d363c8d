#include "setup/ChoiceScreen.h"

void ChoiceScreen::choose(bool first) {
    selectOne = true;
    check1_.setImageName(first ? "check" : "uncheck");
    check2_.setImageName(first ? "uncheck" : "check");
}
