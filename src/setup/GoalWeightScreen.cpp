#include "setup/GoalWeightScreen.h"

#include "setup/GenderScreen.h"
#include "store/AppState.h"
#include "store/TextValue.h"

GoalWeightScreen::GoalWeightScreen(QObject* parent) : WeightScreen(parent) {
    setTitle("Goal Weight");
}

void GoalWeightScreen::nextButton() {
    if (hasWeight()) {
        // The whole text, untrimmed: leading blanks are skipped and anything after the number
        // ("72.5kg") ignored; a text that starts with no number is 0.
        AppState::shared().goalWeightValue = floatValue(enterGWtTxt()->text().toStdString());
        pushStep<GenderScreen>();
    } else {
        showAlert("Enter Goal Weight");
    }
}
