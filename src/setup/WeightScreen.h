#pragma once
// A set-up step that takes a weight typed in the chosen unit: the field is ready for typing at
// once, and the step is complete when the field holds more than blanks and tabs.

#include "setup/WizardScreen.h"
#include "ui/Label.h"
#include "ui/TextField.h"

class WeightScreen : public WizardScreen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("screens are made by code")
    Q_PROPERTY(Label* wtLbl READ wtLbl CONSTANT)

public:
    using WizardScreen::WizardScreen;

    Label* wtLbl() { return &wtLbl_; }

protected:
    void viewDidLoad() override;

    TextField* field() { return &field_; }
    bool hasWeight() const;

private:
    TextField field_;
    Label wtLbl_;
};
