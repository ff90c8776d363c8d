#pragma once
// One food of the catalogue with a picker for the number of portions, whole and eighths, and the
// calories of the amount chosen. Opened from the Today tab (tab 0 selected) it books: every
// settled wheel adds the amount then shown to the day's consumed calories, and "Done" writes the
// total. Opened anywhere else it is a calculator only. The mode is read from the tab bar each
// time, not kept. The screen is its picker's data source and delegate.

#include <cstdint>
#include <string>
#include <vector>

#include "ui/Label.h"
#include "ui/PickerView.h"
#include "ui/ViewController.h"

class FoodScreen : public ViewController, public PickerViewDataSource, public PickerViewDelegate {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("screens are made by code")
    Q_PROPERTY(Label* Foodname READ Foodname CONSTANT)
    Q_PROPERTY(Label* calorieAmt READ calorieAmt CONSTANT)
    Q_PROPERTY(Label* labelFoodUnit READ labelFoodUnit CONSTANT)
    Q_PROPERTY(PickerView* selectPicker READ selectPicker CONSTANT)

public:
    explicit FoodScreen(QObject* parent = nullptr);

    Label* Foodname() { return &Foodname_; }
    Label* calorieAmt() { return &calorieAmt_; }
    Label* labelFoodUnit() { return &labelFoodUnit_; }
    PickerView* selectPicker() { return &selectPicker_; }

    int64_t numberOfComponentsInPickerView() override { return 3; }
    int64_t pickerViewNumberOfRowsInComponent(int64_t component) override;
    QString pickerViewTitleForRowForComponent(int64_t row, int64_t component) override;
    void pickerViewDidSelectRowInComponent(int64_t row, int64_t component) override;
    // "Portions", "Fraction", and "Portions unit" for the blank wheel that stands where a unit
    // would.
    QString pickerViewAccessibilityLabelForComponent(int64_t component) override;

    // Set by the search before the screen is shown.
    std::string item;          // the food's name
    std::string item1;         // calories of one portion, as the catalogue has the text
    std::string foodItemUnit;  // the portion's text

    std::vector<std::string> ih1;  // whole portions "0" to "200"
    std::vector<std::string> ih2;  // fraction titles: blank, then "1/8" to "7/8"
    std::vector<std::string> ih3;  // the fractions' values, "0" to "0.875"
    int64_t cal = 0;               // calories of the whole portions
    int64_t cal2 = 0;              // calories of the fraction

public slots:
    void DoneButton();
    void CancelButton();

protected:
    QString untitledName() const override { return QString::fromStdString(item); }
    void viewDidLoad() override;

private:
    static bool booking();

    Label Foodname_;
    Label calorieAmt_;
    Label labelFoodUnit_;
    PickerView selectPicker_;
};
