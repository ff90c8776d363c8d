#include "setup/EnterWtScreen.h"

#include "setup/GoalWeightScreen.h"

EnterWtScreen::EnterWtScreen(QObject* parent) : WeightScreen(parent) {
    setTitle("Starting Weight");
}

void EnterWtScreen::nextButton() {
    if (hasWeight()) {
        pushStep<GoalWeightScreen>();
    } else {
        showAlert("Enter Today's Weight");
    }
}
