#pragma once
// Set-up step 2: today's weight. It is only checked for presence; the budget uses the goal.

#include "setup/WeightScreen.h"

class EnterWtScreen : public WeightScreen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("screens are made by code")
    Q_PROPERTY(TextField* enterWtTxt READ enterWtTxt CONSTANT)

public:
    explicit EnterWtScreen(QObject* parent = nullptr);

    TextField* enterWtTxt() { return field(); }
    void nextButton() override;
};
