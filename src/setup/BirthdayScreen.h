#pragma once
// Set-up step 6: the birthday. Its action finishes set-up in one go: the budget, the plan's
// start and its 366 days into food.db, set-up marked done, then the tab interface.

#include <cstdint>

#include "setup/WizardScreen.h"
#include "ui/DatePicker.h"
#include "ui/Label.h"

class BirthdayScreen : public WizardScreen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("screens are made by code")
    Q_PROPERTY(DatePicker* datePicker READ datePicker CONSTANT)
    Q_PROPERTY(Label* dateLbl READ dateLbl CONSTANT)
    Q_PROPERTY(View* animatedView READ animatedView CONSTANT)

public:
    explicit BirthdayScreen(QObject* parent = nullptr);

    DatePicker* datePicker() { return &datePicker_; }
    Label* dateLbl() { return &dateLbl_; }
    View* animatedView() { return &animatedView_; }

    // The last step has nothing after it: set-up ends through selectDate.
    void nextButton() override {}
    // Runs in full on every press: a second press writes the budget and start again, adds
    // another 366 days and pushes another tab interface.
    Q_INVOKABLE void selectDate(QObject* sender);

    int64_t age = 0;  // in calendar years; month and day are not compared

protected:
    void viewDidLoad() override;
    // Deliberately empty, and the base is not told either.
    void viewWillDisappear(bool) override {}

private:
    DatePicker datePicker_;
    Label dateLbl_;
    View animatedView_;
};
