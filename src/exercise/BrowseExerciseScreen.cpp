#include "exercise/BrowseExerciseScreen.h"

#include "exercise/Duration.h"
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

namespace {

std::vector<std::string> numbers(int count) {
    std::vector<std::string> texts;
    for (int i = 0; i < count; ++i) texts.push_back(formatted("%i", i));
    return texts;
}

}  // namespace

BrowseExerciseScreen::BrowseExerciseScreen(QObject* parent) : ViewController(parent) {
    selectPicker_.setDataSource(this);
    selectPicker_.setDelegate(this);
}

// A screen outside any tab interface reads as the first tab, as asking nobody yields 0.
bool BrowseExerciseScreen::onTodayTab() const {
    const TabBarController* tabs = tabBarController();
    return !tabs || tabs->selectedIndex() == 0;
}

void BrowseExerciseScreen::viewDidLoad() {
    ViewController::viewDidLoad();
    DEVLOG("%s", item().toUtf8().constData());
    Foodname_.setText(item());
    calorieAmt_.setText(item1());
    // The screen opens on one hour of the activity, which the per-hour value already is.
    cal = integerValue(item1().toStdString());
    cal2 = 0;

    if (onTodayTab()) {
        setTitle("Add Exercise");
        navigationItem()->setRightBarButtonItem(
            redBarButtonItem("Done", 50, this, &BrowseExerciseScreen::DoneButton));
        navigationItem()->setLeftBarButtonItem(
            redBarButtonItem("Cancel", 70, this, &BrowseExerciseScreen::CancelButton));
    }

    ih2 = numbers(60);
    ih1 = numbers(24);
    selectPicker_.reloadAllComponents();
    selectPicker_.selectRow(1, 0, true);  // by code: books nothing
}

int64_t BrowseExerciseScreen::pickerViewNumberOfRowsInComponent(int64_t component) {
    size_t rows = 1;  // "Hour" and "Min"
    if (component == 0) rows = ih1.size();
    if (component == 2) rows = ih2.size();
    DEVLOG("Number of rows returned for component %ld are rows %ld", static_cast<long>(component),
           static_cast<long>(rows));
    return static_cast<int64_t>(rows);
}

QString BrowseExerciseScreen::pickerViewTitleForRowForComponent(int64_t row, int64_t component) {
    switch (component) {
        case 0:
            return QString::fromStdString(checkedAt(ih1, row, "ih1"));
        case 1:
            return "Hour";
        case 2:
            return QString::fromStdString(checkedAt(ih2, row, "ih2"));
        default:
            return "Min";
    }
}

void BrowseExerciseScreen::pickerViewDidSelectRowInComponent(int64_t row, int64_t component) {
    const int64_t perHour = integerValue(item1().toStdString());
    if (component == 0) {
        cal = duration::hoursCalories(integerValue(checkedAt(ih1, row, "ih1")), perHour);
    } else if (component == 2) {
        cal2 = duration::minutesCalories(integerValue(checkedAt(ih2, row, "ih2")), perHour);
        DEVLOG("%li", static_cast<long>(cal2));
    }
    calorieAmt_.setText(
        QString::fromStdString(formatted("%li", static_cast<long>(duration::total(cal, cal2)))));

    if (onTodayTab()) {
        AppState& state = AppState::shared();
        duration::book(intValue(calorieAmt_.text().toStdString()), state.burnedValue,
                       state.consumedValue);
    }
}

void BrowseExerciseScreen::DoneButton() {
    AppState& state = AppState::shared();
    CalorieStore& store = Application::delegate()->store();
    const auto day = static_cast<int32_t>(state.dayIndex);
    store.UpdateDatabase1("calorieConsumed", formatted("%li", long{state.consumedValue}), day);
    store.UpdateDatabase1("calorieBurned", formatted("%li", long{state.burnedValue}), day);
    store.readDataFromDatabaseMainTable();
    if (NavigationController* nav = navigationController()) nav->popToRootViewController(true);
}

// Leaves the day's values as the wheels have changed them: nothing is saved, nothing undone.
void BrowseExerciseScreen::CancelButton() {
    if (NavigationController* nav = navigationController()) nav->popViewController(true);
}

QString BrowseExerciseScreen::pickerViewAccessibilityLabelForComponent(int64_t component) {
    static const char* const names[] = {"Hours", "Hours unit", "Minutes", "Minutes unit"};
    return component >= 0 && component < 4 ? names[component] : QString();
}
