#pragma once
// Set-up step 4: the gender the budget's formula is chosen by.

#include "setup/ChoiceScreen.h"
#include "ui/Button.h"
#include "ui/Label.h"

class GenderScreen : public ChoiceScreen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("screens are made by code")
    Q_PROPERTY(Label* maleLbl READ maleLbl CONSTANT)
    Q_PROPERTY(Label* femaleLbl READ femaleLbl CONSTANT)

public:
    explicit GenderScreen(QObject* parent = nullptr);

    Label* maleLbl() { return &maleLbl_; }
    Label* femaleLbl() { return &femaleLbl_; }

    // Tag 0 is male, any other tag female.
    Q_INVOKABLE void genderBtn(Button* sender);
    void nextButton() override;

protected:
    void viewDidLoad() override;

private:
    Label maleLbl_;
    Label femaleLbl_;
};
