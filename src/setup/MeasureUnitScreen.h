#pragma once
// Set-up step 1: the measuring unit, Metric or Imperial.

#include "setup/ChoiceScreen.h"
#include "ui/Button.h"

class MeasureUnitScreen : public ChoiceScreen {
    Q_OBJECT

public:
    explicit MeasureUnitScreen(const QString& layoutName, QObject* parent = nullptr)
        : ChoiceScreen(layoutName, parent) {}

    // Tag 0 is Metric, any other tag Imperial.
    Q_INVOKABLE void selectunit(Button* sender);
    void nextButton() override;

protected:
    void viewDidLoad() override;
};
