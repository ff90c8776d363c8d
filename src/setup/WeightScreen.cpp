#include "setup/WeightScreen.h"

#include "setup/CalorieBudget.h"
#include "store/AppState.h"

void WeightScreen::viewDidLoad() {
    WizardScreen::viewDidLoad();
    field_.becomeFirstResponder();
    const char* unit = AppState::shared().measureUnit == "Metric" ? "Kilograms" : "Pounds";
    field_.setPlaceholder(unit);
    field_.setKeyboardType(TextField::KeyboardType::DecimalPad);
    wtLbl_.setText(unit);
    addBarButtons(Previous | Next);
    hideNavigationBackButton();
}

bool WeightScreen::hasWeight() const {
    return !trimBlanksAndTabs(field_.text().toStdString()).empty();
}
