#pragma once
// Set-up step 5: the height on a picker, in centimetres (Metric) or feet and inches (otherwise).
// The screen is its picker's data source and delegate.

#include <string>
#include <vector>

#include "setup/WizardScreen.h"
#include "ui/Label.h"
#include "ui/PickerView.h"

class HeightScreen : public WizardScreen, public PickerViewDataSource, public PickerViewDelegate {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("screens are made by code")
    Q_PROPERTY(PickerView* selectPicker READ selectPicker CONSTANT)
    Q_PROPERTY(Label* htLbl READ htLbl CONSTANT)

public:
    explicit HeightScreen(QObject* parent = nullptr);

    PickerView* selectPicker() { return &selectPicker_; }
    Label* htLbl() { return &htLbl_; }

    void nextButton() override;

    int64_t numberOfComponentsInPickerView() override;
    int64_t pickerViewNumberOfRowsInComponent(int64_t component) override;
    // Asking for any title counts as the height being chosen: the picker asks as soon as it shows.
    QString pickerViewTitleForRowForComponent(int64_t row, int64_t component) override;
    void pickerViewDidSelectRowInComponent(int64_t row, int64_t component) override;
    // "Height" and "cm" in Metric; "Feet", "Inches" and their unit columns otherwise.
    QString pickerViewAccessibilityLabelForComponent(int64_t component) override;

    int64_t pickerValue = 0;       // 0 Metric, 1 Imperial
    std::vector<std::string> mh1;  // "40" to "300" (Metric)
    std::vector<std::string> ih1;  // feet "1" to "8" (Imperial)
    std::vector<std::string> ih2;  // inches "0" to "11" (Imperial)
    std::string txt1;              // feet last chosen
    std::string txt2;              // inches last chosen
    bool selectOne = false;

protected:
    void viewDidLoad() override;

private:
    PickerView selectPicker_;
    Label htLbl_;
};
