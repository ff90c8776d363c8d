#pragma once
// Set-up step 3: the goal weight, the weight the daily budget is worked out for.

#include "setup/WeightScreen.h"

class GoalWeightScreen : public WeightScreen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("screens are made by code")
    Q_PROPERTY(TextField* enterGWtTxt READ enterGWtTxt CONSTANT)

public:
    explicit GoalWeightScreen(QObject* parent = nullptr);

    TextField* enterGWtTxt() { return field(); }
    void nextButton() override;
};
