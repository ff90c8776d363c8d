#include "app/tabs/TabBar.h"

#include "app/tabs/MoreScreen.h"
#include "dashboard/LogScreen.h"
#include "dashboard/TodayScreen.h"
#include "exercise/ExerciseScreen.h"
#include "food/SearchFoodScreen.h"
#include "store/AppState.h"
#include "store/CalorieStore.h"
#include "store/DayIndex.h"
#include "store/DevLog.h"
#include "ui/Application.h"
#include "ui/Theme.h"
#include "ui/Window.h"

void TabBar::viewDidLoad() {
    ViewController::viewDidLoad();
    AppState& state = AppState::shared();
    ApplicationDelegate* app = Application::delegate();
    CalorieStore& store = app->store();
    store.readDataFromDatabase();
    store.readDataFromDatabaseFoodTable();
    store.readDataFromDatabaseMainTable();
    DEVLOG("food cal %s", devlog::describe(state.foodCalories).c_str());
    DEVLOG("food name %s", devlog::describe(state.foodNames).c_str());

    computeDayIndex(state, Clock::now());

    auto* tabs = new TabBarController;
    state.tabBarController = tabs;
    tabArray.clear();
    tabs->setTintColor(Theme::tint());

    todayObj = new TodayScreen;
    foodObj = new SearchFoodScreen;
    exerciseObj = new ExerciseScreen;
    logObj = new LogScreen;
    moreObj = new MoreScreen;

    struct Tab {
        ViewController* screen;
        NavigationController** nav;
        const char* title;
        const char* image;
    };
    const Tab order[] = {{todayObj, &todayNav, "Today", "today"},
                         {foodObj, &foodNav, "Food", "food"},
                         {exerciseObj, &exerciseNav, "Exercise", "excersice"},
                         {logObj, &logNav, "Log", "log"},
                         {moreObj, &moreNav, "More", "more"}};
    for (const Tab& tab : order) {
        *tab.nav = new NavigationController(tab.screen);
        tab.screen->tabBarItem()->setTitle(tab.title);
        tab.screen->tabBarItem()->setImageName(tab.image);
        (*tab.nav)->setTintColor(Theme::tint());
        tabArray.append(*tab.nav);
    }

    tabs->setViewControllers(tabArray);
    tabs->setSelectedIndex(0);
    app->window()->addSubview(tabs);
}
