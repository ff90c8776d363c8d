#include "setup/HeightScreen.h"

#include "setup/BirthdayScreen.h"
#include "store/AppState.h"
#include "store/Checked.h"
#include "store/DevLog.h"
#include "store/Formatted.h"
#include "store/TextValue.h"

HeightScreen::HeightScreen(QObject* parent) : WizardScreen(parent) {
    setTitle("Height");
    selectPicker_.setDataSource(this);
    selectPicker_.setDelegate(this);
}

void HeightScreen::viewDidLoad() {
    WizardScreen::viewDidLoad();
    addBarButtons(Previous | Next);
    hideNavigationBackButton();
    // Assigned as strings: GCC 12 warns falsely (-Wrestrict) on assigning the bare literals.
    txt1 = std::string("1");
    txt2 = std::string("0");
    if (AppState::shared().measureUnit == "Metric") {
        pickerValue = 0;
        mh1.clear();
        for (int cm = 40; cm <= 300; ++cm) mh1.push_back(formatted("%i", cm));
    } else {
        pickerValue = 1;
        ih1 = {"1", "2", "3", "4", "5", "6", "7", "8"};
        ih2 = {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11"};
    }
    selectPicker_.reloadAllComponents();
    DEVLOG("%s %s", devlog::describe(ih1).c_str(), devlog::describe(ih2).c_str());
}

void HeightScreen::nextButton() {
    if (selectOne) {
        pushStep<BirthdayScreen>();
    } else {
        showAlert("Enter Height");
    }
}

int64_t HeightScreen::numberOfComponentsInPickerView() {
    return pickerValue != 0 ? 4 : 2;
}

int64_t HeightScreen::pickerViewNumberOfRowsInComponent(int64_t component) {
    size_t rows = 1;  // the unit columns
    if (pickerValue == 0) {
        if (component == 0) rows = mh1.size();
    } else if (component == 0) {
        rows = ih1.size();
    } else if (component == 2) {
        rows = ih2.size();
    }
    DEVLOG("Number of rows returned for component %ld are rows %ld", static_cast<long>(component),
           static_cast<long>(rows));
    return static_cast<int64_t>(rows);
}

QString HeightScreen::pickerViewTitleForRowForComponent(int64_t row, int64_t component) {
    selectOne = true;
    if (pickerValue == 0) {
        return component == 0 ? QString::fromStdString(checkedAt(mh1, row, "mh1")) : "cm";
    }
    switch (component) {
        case 0:
            return QString::fromStdString(checkedAt(ih1, row, "ih1"));
        case 1:
            return "Feet";
        case 2:
            return QString::fromStdString(checkedAt(ih2, row, "ih2"));
        default:
            return "inch";
    }
}

QString HeightScreen::pickerViewAccessibilityLabelForComponent(int64_t component) {
    if (pickerValue == 0) return component == 0 ? "Height" : "cm";
    switch (component) {
        case 0:
            return "Feet";
        case 1:
            return "Feet unit";
        case 2:
            return "Inches";
        default:
            return "Inches unit";
    }
}

void HeightScreen::pickerViewDidSelectRowInComponent(int64_t row, int64_t component) {
    AppState& state = AppState::shared();
    if (pickerValue == 0) {
        // Whatever the column: the single "cm" row is row 0, and so reads as the first height.
        htLbl_.setText(QString::fromStdString(checkedAt(mh1, row, "mh1") + " cm"));
        state.heightCm = intValue(htLbl_.text().toStdString());
        return;
    }
    if (component == 2) txt2 = checkedAt(ih2, row, "ih2");
    if (component == 0) txt1 = checkedAt(ih1, row, "ih1");
    htLbl_.setText(QString::fromStdString(txt1 + " Feet " + txt2 + " inch"));
    state.heightInches = intValue(txt2);
    state.heightFeet = intValue(txt1);
}
