#include "setup/MeasureUnitScreen.h"

#include "setup/EnterWtScreen.h"
#include "store/AppState.h"
#include "store/DevLog.h"

void MeasureUnitScreen::viewDidLoad() {
    ChoiceScreen::viewDidLoad();
    addBarButtons(Next);
}

void MeasureUnitScreen::selectunit(Button* sender) {
    const bool metric = sender->tag() == 0;
    const char* unit = metric ? "Metric" : "Imperial";
    DEVLOG("%s", unit);
    choose(metric);
    AppState::shared().measureUnit = unit;
}

void MeasureUnitScreen::nextButton() {
    if (selectOne) {
        pushStep<EnterWtScreen>();
    } else {
        showAlert("Select one measuring unit");
    }
}
