#include "dashboard/TodayScreen.h"

#include <memory>

#include "exercise/ExerciseScreen.h"
#include "food/CustomEntryScreen.h"
#include "food/SearchFoodScreen.h"
#include "overlay/StatusOverlay.h"
#include "store/AppState.h"
#include "store/DayIndex.h"
#include "store/DevLog.h"
#include "store/TextValue.h"
#include "ui/Application.h"
#include "ui/MainScreen.h"
#include "ui/TabBarController.h"
#include "ui/Theme.h"
#include "ui/Window.h"

namespace {

constexpr int kAddMenu = 101;
constexpr int kFoodMenu = 102;
constexpr int kExerciseMenu = 103;

struct Menu {
    int tag;
    const char* first;
    const char* second;
};
constexpr Menu kMenus[] = {{kAddMenu, "Add Food", "Add Excercise"},
                           {kFoodMenu, "Search for food", "Custom food"},
                           {kExerciseMenu, "Browse exercises", "Custom exercise"}};

}  // namespace

TodayScreen::TodayScreen(QObject* parent)
    : DashboardScreen(gauge::todayGeometry(AppState::shared().isPad), parent) {
    setTitle("Today");
}

// A sheet still on screen must leave the window before it goes with this screen.
TodayScreen::~TodayScreen() {
    retireMenu();
}

void TodayScreen::viewDidLoad() {
    DashboardScreen::viewDidLoad();
    StatusOverlay::dismiss();
    AppState& state = AppState::shared();
    state.defaults = Application::delegate()->standardUserDefaults();
    const TabBarController* tabs = tabBarController();
    DEVLOG("%lu", static_cast<unsigned long>(tabs ? tabs->selectedIndex() : 0));
    mainScroll_.setAutomaticallyAdjustsInsets(false);

    auto* add = new Button;
    add->setImageName("addicon");
    add->setTitleColor(Theme::tint());
    add->setFrame(QRectF(0, 0, 40, 38));
    add->setAdjustsImageWhenHighlighted(false);
    add->setAccessibleName("Add");
    connect(add, &Button::touchUpInside, this, &TodayScreen::AddButton);
    navigationItem()->setRightBarButtonItem(new BarButtonItem(add));

    showTodaysDate();
}

void TodayScreen::viewWillAppear(bool animated) {
    DashboardScreen::viewWillAppear(animated);
    StatusOverlay::dismiss();
    AppState& state = AppState::shared();
    // Always today's row, whichever day the Log tab has chosen.
    const DayRow& row = dayRecord(state, state.todayIndex);
    DEVLOG("%d", state.consumedValue);
    DEVLOG("%s", devlog::describe(row).c_str());
    state.consumedValue = static_cast<int32_t>(integerValue(row[2]));
    state.burnedValue = static_cast<int32_t>(integerValue(row[3]));
    DEVLOG("%d", state.consumedValue);

    // A 480-point-high phone cannot show the whole page between its bars: let it scroll.
    if (MainScreen::bounds().height() == 480) {
        mainScroll_.setContentSize(QSizeF(320, 500));
        mainScroll_.setScrollEnabled(true);
    }

    const float caloriesPerPoint = showScaleMarks(false);
    showDay(caloriesPerPoint);
    placeBudgetLine(caloriesPerPoint);
    drawYourGoal();
}

void TodayScreen::AddButton() {
    showMenu(kAddMenu);
}

void TodayScreen::addFood(Button*) {
    showMenu(kFoodMenu);
}

void TodayScreen::addExcercise(Button*) {
    showMenu(kExerciseMenu);
}

void TodayScreen::showMenu(int tag) {
    retireMenu();
    for (const Menu& menu : kMenus) {
        if (menu.tag != tag) continue;
        actiondoor_ = new ActionSheet("Select Option", "Cancel", {menu.first, menu.second}, this);
        actiondoor_->setTag(tag);
        connect(actiondoor_, &ActionSheet::clickedButtonAtIndex, this,
                &TodayScreen::actionSheetClickedButtonAtIndex);
        actiondoor_->show();
    }
}

void TodayScreen::retireMenu() {
    if (!actiondoor_) return;
    if (actiondoor_->isVisible()) {
        if (ApplicationDelegate* app = Application::delegate()) app->window()->dismiss(actiondoor_);
    }
    // Later: this may run inside the old sheet's own click signal.
    actiondoor_->deleteLater();
    actiondoor_ = nullptr;
}

void TodayScreen::actionSheetClickedButtonAtIndex(ActionSheet* sheet, int index) {
    AppState& state = AppState::shared();
    switch (sheet->tag()) {
        case kAddMenu:
            if (index == 0) {
                showMenu(kFoodMenu);
            } else if (index == 1) {
                showMenu(kExerciseMenu);
            } else if (actiondoor_) {
                actiondoor_->show();  // cancelling the add menu brings it back
            }
            break;
        case kFoodMenu:
            if (index == 0) {
                pushOnTodayTab(new SearchFoodScreen);
            } else if (index == 1) {
                state.customEntryIsExercise = false;
                pushOnTodayTab(new CustomEntryScreen);
            }
            break;
        case kExerciseMenu:
            if (index == 0) {
                pushOnTodayTab(new ExerciseScreen);
            } else if (index == 1) {
                state.customEntryIsExercise = true;
                pushOnTodayTab(new CustomEntryScreen);
            }
            break;
        default:
            break;
    }
}

void TodayScreen::pushOnTodayTab(ViewController* screen) {
    std::unique_ptr<ViewController> owned(screen);
    const TabBarController* tabs = AppState::shared().tabBarController;
    if (NavigationController* today = tabs ? tabs->viewControllers().value(0) : nullptr)
        today->pushViewController(owned.release(), true);
}
