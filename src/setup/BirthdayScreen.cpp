#include "setup/BirthdayScreen.h"

#include <chrono>

#include "app/tabs/TabBar.h"
#include "setup/CalorieBudget.h"
#include "store/AppState.h"
#include "store/CalorieStore.h"
#include "store/DevLog.h"
#include "store/Formatted.h"
#include "store/PlanFinish.h"
#include "store/UserDefaults.h"
#include "ui/Application.h"

BirthdayScreen::BirthdayScreen(QObject* parent) : WizardScreen(parent) {
    setTitle("Birthday");
    animatedView_.setHidden(true);  // until selectDate begins
}

void BirthdayScreen::viewDidLoad() {
    WizardScreen::viewDidLoad();
    addBarButtons(Previous);
}

void BirthdayScreen::selectDate(QObject* /*sender*/) {
    animatedView_.setHidden(false);

    const Instant birth = datePicker_.date();
    dateLbl_.setText(QString::fromStdString(DateFormatter("MMMM d,YYYY").format(birth)));

    const Instant today = Clock::now();
    DEVLOG("%li", static_cast<long>(calendarDay(today).year));
    DEVLOG("%li", static_cast<long>(calendarDay(birth).year));
    age = ageInYears(today, birth);
    DEVLOG("%li", static_cast<long>(age));

    AppState& state = AppState::shared();
    state.calorieBudgetValue = calorieBudget(state, age);

    ApplicationDelegate* app = Application::delegate();
    CalorieStore& store = app->store();
    store.UpdateDatabase("calorieBudget", formatted("%i", state.calorieBudgetValue));
    store.UpdateDatabase("startingDate", standardDescription(Clock::now()));

    state.defaults = app->standardUserDefaults();
    state.defaults->setObject("no", "firstTime");
    state.defaults->synchronize();

    // A plan day is exactly 86,400 seconds, not a calendar day: near midnight a daylight-saving
    // change makes a label repeat or skip a date, as plans made so far have it.
    Instant day = Clock::now();
    const DateFormatter dayLabel("EEEE MMMM d");
    store.insertDatabase(dayLabel.format(Clock::now()), 0);
    for (int32_t id = 1; id < kPlanDays; ++id) {
        day += std::chrono::seconds(86400);
        DEVLOG("%s", dayLabel.format(day).c_str());
        store.insertDatabase(dayLabel.format(day), id);
    }

    navigationController()->pushViewController(new TabBar, true);
}
