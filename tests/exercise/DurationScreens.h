#pragma once
// The duration screen pushed as the exercise list pushes it, on a tab of the running app.

#include "exercise/BrowseExerciseScreen.h"
#include "store/AppState.h"
#include "support/AppHarness.h"
#include "ui/TabBarController.h"

// Selects the tab first, as a person is on it when choosing an activity.
inline BrowseExerciseScreen* pushDuration(int index, const QString& name, const QString& perHour) {
    AppState::shared().tabBarController->setSelectedIndex(index);
    auto* screen = new BrowseExerciseScreen;
    screen->setItem(name);
    screen->setItem1(perHour);
    tab(index)->pushViewController(screen, false);
    return screen;
}
