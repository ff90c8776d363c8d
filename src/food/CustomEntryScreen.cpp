#include "food/CustomEntryScreen.h"

#include "food/DayTotal.h"
#include "store/AppState.h"
#include "store/CalorieStore.h"
#include "store/DevLog.h"
#include "store/Formatted.h"
#include "store/TextValue.h"
#include "ui/Application.h"
#include "ui/BarButton.h"
#include "ui/NavigationController.h"

CustomEntryScreen::CustomEntryScreen(QObject* parent) : ViewController(parent) {}

void CustomEntryScreen::viewDidLoad() {
    ViewController::viewDidLoad();
    const bool exercise = AppState::shared().customEntryIsExercise;
    setTitle(exercise ? "Calories Burned" : "Calories");
    detailLbl_.setText(exercise ? "Enter Amount of Calories burned" : "Enter Amount of Calories");
    calorieTxt_.setPlaceholder("Calories");
    calorieTxt_.setKeyboardType(TextField::KeyboardType::NumberPad);
    calorieTxt_.becomeFirstResponder();
    navigationItem()->setRightBarButtonItem(
        redBarButtonItem("Done", 50, this, &CustomEntryScreen::nextButton));
    navigationController()->setTintColor(Theme::tint());
}

void CustomEntryScreen::nextButton() {
    AppState& state = AppState::shared();
    CalorieStore& store = Application::delegate()->store();
    const auto n = static_cast<int32_t>(integerValue(calorieTxt_.text().toStdString()));
    const auto consumed = [&] { return formatted("%li", static_cast<long>(state.consumedValue)); };
    const auto day = static_cast<int32_t>(state.dayIndex);
    if (!state.customEntryIsExercise) {
        addToDayTotal(state.consumedValue, n);
        store.UpdateDatabase1("calorieConsumed", consumed(), day);
    } else {
        // Burned calories lower the day's net intake as well.
        addToDayTotal(state.burnedValue, n);
        DEVLOG("today Cal %d", state.consumedValue);
        addToDayTotal(state.consumedValue, -static_cast<int64_t>(n));
        DEVLOG("today Cal %d", state.consumedValue);
        store.UpdateDatabase1("calorieConsumed", consumed(), day);
        store.UpdateDatabase1("calorieBurned",
                              formatted("%li", static_cast<long>(state.burnedValue)), day);
    }
    store.readDataFromDatabaseMainTable();
    navigationController()->popViewController(true);
}

void CustomEntryScreen::previousButton() {
    navigationController()->popViewController(true);
}
