#pragma once
// A set-up step that asks for one of two answers, each marked by a check image.

#include "setup/WizardScreen.h"
#include "ui/ImageView.h"

class ChoiceScreen : public WizardScreen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("screens are made by code")
    Q_PROPERTY(ImageView* check1 READ check1 CONSTANT)
    Q_PROPERTY(ImageView* check2 READ check2 CONSTANT)

public:
    // Neither answer is checked until one is chosen.
    explicit ChoiceScreen(QObject* parent = nullptr);

    ImageView* check1() { return &check1_; }
    ImageView* check2() { return &check2_; }

    // A choice was made on this instance; a new instance of the step starts without one.
    bool selectOne = false;

protected:
    // Records that a choice was made and marks the first or the second answer as the one.
    void choose(bool first);

private:
    ImageView check1_;
    ImageView check2_;
};
