#include "food/FoodScreen.h"

#include "food/DayTotal.h"
#include "store/AppState.h"
#include "store/CalorieStore.h"
#include "store/Checked.h"
#include "store/DevLog.h"
#include "store/Formatted.h"
#include "store/TextValue.h"
#include "ui/Application.h"
#include "ui/BarButton.h"
#include "ui/NavigationController.h"
#include "ui/TabBarController.h"

FoodScreen::FoodScreen(QObject* parent) : ViewController(parent) {
    selectPicker_.setDataSource(this);
    selectPicker_.setDelegate(this);
}

bool FoodScreen::booking() {
    const TabBarController* tabs = AppState::shared().tabBarController;
    return (tabs ? tabs->selectedIndex() : 0) == 0;
}

void FoodScreen::viewDidLoad() {
    ViewController::viewDidLoad();
    DEVLOG("%s", item.c_str());
    Foodname_.setText(QString::fromStdString(item));
    calorieAmt_.setText(QString::fromStdString(item1));  // as the catalogue has it: 52.5 stays
    labelFoodUnit_.setAdjustsFontSizeToFitWidth(true);
    labelFoodUnit_.setText(QString::fromStdString(foodItemUnit));
    cal = integerValue(item1);
    cal2 = 0;
    if (booking()) {
        setTitle("Add Food");
        navigationItem()->setRightBarButtonItem(
            redBarButtonItem("Done", 50, this, &FoodScreen::DoneButton));
        navigationItem()->setLeftBarButtonItem(
            redBarButtonItem("Cancel", 70, this, &FoodScreen::CancelButton));
    }
    ih1.clear();
    for (int portions = 0; portions <= 200; ++portions) ih1.push_back(formatted("%i", portions));
    ih2 = {"", "1/8", "1/4", "3/8", "1/2", "5/8", "3/4", "7/8"};
    ih3 = {"0", "0.125", "0.25", "0.375", "0.5", "0.625", "0.75", "0.875"};
    selectPicker_.reloadAllComponents();
    // One portion, shown but not booked: a row chosen by code is not reported.
    selectPicker_.selectRow(1, 0, true);
}

int64_t FoodScreen::pickerViewNumberOfRowsInComponent(int64_t component) {
    const size_t rows = component == 0 ? ih1.size() : component == 1 ? ih2.size() : 1;
    DEVLOG("Number of rows returned for component %ld are rows %ld", static_cast<long>(component),
           static_cast<long>(rows));
    return static_cast<int64_t>(rows);
}

QString FoodScreen::pickerViewTitleForRowForComponent(int64_t row, int64_t component) {
    if (component == 0) return QString::fromStdString(checkedAt(ih1, row, "ih1"));
    if (component == 1) return QString::fromStdString(checkedAt(ih2, row, "ih2"));
    return QString();
}

QString FoodScreen::pickerViewAccessibilityLabelForComponent(int64_t component) {
    static const char* const names[] = {"Portions", "Fraction", "Portions unit"};
    return component >= 0 && component < 3 ? names[component] : QString();
}

void FoodScreen::pickerViewDidSelectRowInComponent(int64_t row, int64_t component) {
    if (component == 0) {
        // 64-bit and wrapping: a calories text past the limits stays out of undefined behaviour.
        cal = static_cast<int64_t>(static_cast<uint64_t>(integerValue(checkedAt(ih1, row, "ih1"))) *
                                   static_cast<uint64_t>(integerValue(item1)));
    } else if (component == 1) {
        // In single precision, truncated toward zero; at most 0.875 of a 64-bit value, so in range.
        cal2 = static_cast<int64_t>(static_cast<float>(integerValue(item1)) *
                                    floatValue(checkedAt(ih3, row, "ih3")));
        DEVLOG("%f", static_cast<double>(floatValue(checkedAt(ih2, row, "ih2"))));
    }
    const auto amount =
        static_cast<int64_t>(static_cast<uint64_t>(cal) + static_cast<uint64_t>(cal2));
    calorieAmt_.setText(QString::fromStdString(formatted("%li", static_cast<long>(amount))));
    // Every settled wheel adds what is shown, not the change: the program's own rule.
    if (booking())
        addToDayTotal(AppState::shared().consumedValue,
                      integerValue(calorieAmt_.text().toStdString()));
}

void FoodScreen::DoneButton() {
    AppState& state = AppState::shared();
    CalorieStore& store = Application::delegate()->store();
    store.UpdateDatabase1("calorieConsumed",
                          formatted("%li", static_cast<long>(state.consumedValue)),
                          static_cast<int32_t>(state.dayIndex));
    store.readDataFromDatabaseMainTable();
    navigationController()->popToRootViewController(true);
}

void FoodScreen::CancelButton() {
    // What the wheels added stays added.
    navigationController()->popViewController(true);
}
