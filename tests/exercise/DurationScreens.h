#pragma once
// The duration screen pushed as the exercise list pushes it, on a tab of the running app.

#include "exercise/BrowseExerciseScreen.h"
#include "store/AppState.h"
#include "support/AppHarness.h"
#include "ui/TabBarController.h"

// Selects the tab first, as a person is on it when choosing an activity.
inline BrowseExerciseScreen* pushDuration(int tabIndex, const QString& name, const QString& perHour,
                                          bool animated = false) {
    AppState::shared().tabBarController->setSelectedIndex(tabIndex);
    auto* screen = new BrowseExerciseScreen;
    screen->setItem(name);
    screen->setItem1(perHour);
    tab(tabIndex)->pushViewController(screen, animated);
    return screen;
}
