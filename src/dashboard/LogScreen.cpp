#include "dashboard/LogScreen.h"

#include "store/AppState.h"
#include "store/DayIndex.h"
#include "store/DevLog.h"
#include "store/TextValue.h"

LogScreen::LogScreen(QObject* parent)
    : DashboardScreen(gauge::logGeometry(AppState::shared().isPad), parent) {
    setTitle("Log");
}

void LogScreen::viewDidLoad() {
    DashboardScreen::viewDidLoad();
    showTodaysDate();
}

// Shows the day values as they are: those last loaded by Today or by stepping here.
void LogScreen::viewWillAppear(bool animated) {
    DashboardScreen::viewWillAppear(animated);
    f_ = showScaleMarks(true);
    placeBudgetLine(f_);
    finalResult();
    drawYourGoal();
}

void LogScreen::finalResult() {
    showDay(f_);
}

void LogScreen::nextBtn(Button*) {
    AppState& state = AppState::shared();
    state.dayIndex += 1;
    if (state.dayIndex > state.todayIndex) {
        state.dayIndex -= 1;  // never past today
    } else {
        loadDay();
    }
    finalResult();
    DEVLOG("count %li", static_cast<long>(state.dayIndex));
}

void LogScreen::backBtn(Button*) {
    AppState& state = AppState::shared();
    state.dayIndex -= 1;
    DEVLOG("%li %li", static_cast<long>(state.todayIndex), static_cast<long>(state.dayIndex));
    if (state.dayIndex < 0) {
        state.dayIndex += 1;  // never before the plan's first day
    } else {
        loadDay();
    }
    DEVLOG("count %li", static_cast<long>(state.dayIndex));
    finalResult();
}

void LogScreen::loadDay() {
    AppState& state = AppState::shared();
    const DayRow& row = dayRecord(state, state.dayIndex);
    state.burnedValue = intValue(row[3]);
    state.consumedValue = static_cast<int32_t>(integerValue(row[2]));
    dateLbl()->setText(
        QString::fromStdString(state.dayIndex != state.todayIndex ? row[1] : state.shownDate));
}
