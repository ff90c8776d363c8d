#pragma once
// How long an activity from the exercise list went on, and the calories that burned. Pushed with
// the activity's name (item) and its calories per hour (item1).
//
// Reached from Today (the first tab) it books: every wheel the user turns adds the total shown to
// the day's burned calories and takes it off the eaten ones, and "Done" saves both. Each turn adds
// the whole total again, so turning the wheels three times books three totals; that is how this
// screen counts. From the Exercise tab it only shows the calories of a duration.

#include <QString>
#include <cstdint>
#include <string>
#include <vector>

#include "ui/Label.h"
#include "ui/PickerView.h"
#include "ui/ViewController.h"

class BrowseExerciseScreen : public ViewController,
                             public PickerViewDataSource,
                             public PickerViewDelegate {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("screens are made by code")
    Q_PROPERTY(Label* Foodname READ Foodname CONSTANT)
    Q_PROPERTY(Label* calorieAmt READ calorieAmt CONSTANT)
    Q_PROPERTY(PickerView* selectPicker READ selectPicker CONSTANT)
    // Set before the screen is pushed: the activity's name and its calories per hour.
    KIT_PROPERTY(QString, item, setItem);
    KIT_PROPERTY(QString, item1, setItem1);
    // "<item1> Cal per hour", or nothing before the activity is known.
    Q_PROPERTY(QString perHourText READ perHourText NOTIFY item1Changed)

public:
    explicit BrowseExerciseScreen(QObject* parent = nullptr);

    Label* Foodname() { return &Foodname_; }
    Label* calorieAmt() { return &calorieAmt_; }
    PickerView* selectPicker() { return &selectPicker_; }
    QString perHourText() const {
        return item1().isEmpty() ? QString() : item1() + " Cal per hour";
    }

    int64_t numberOfComponentsInPickerView() override { return 4; }
    int64_t pickerViewNumberOfRowsInComponent(int64_t component) override;
    QString pickerViewTitleForRowForComponent(int64_t row, int64_t component) override;
    void pickerViewDidSelectRowInComponent(int64_t row, int64_t component) override;
    QString pickerViewAccessibilityLabelForComponent(int64_t component) override;

    std::vector<std::string> ih1;  // hours "0" to "23"
    std::vector<std::string> ih2;  // minutes "0" to "59"
    int64_t cal = 0;               // calories of the whole hours chosen
    int64_t cal2 = 0;              // calories of the minutes chosen

public slots:
    void DoneButton();
    void CancelButton();

protected:
    QString untitledName() const override { return item(); }
    void viewDidLoad() override;

private:
    // Booking happens only on the first tab.
    bool onTodayTab() const;

    Label Foodname_;
    Label calorieAmt_;
    PickerView selectPicker_;
};
