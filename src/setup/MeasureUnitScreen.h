#pragma once
// Set-up step 1: the measuring unit, Metric or Imperial.

#include "setup/ChoiceScreen.h"
#include "ui/Button.h"

class MeasureUnitScreen : public ChoiceScreen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("screens are made by code")

public:
    explicit MeasureUnitScreen(QObject* parent = nullptr) : ChoiceScreen(parent) {}

    // Tag 0 is Metric, any other tag Imperial.
    Q_INVOKABLE void selectunit(Button* sender);
    void nextButton() override;

protected:
    QString untitledName() const override { return QStringLiteral("Units"); }
    void viewDidLoad() override;
};
