// Every screen, in both idioms, is drawn by a layout that loads and binds without a single QML
// warning: a broken layout is caught here before a person sees it.
#include <gtest/gtest.h>

#include "app/tabs/MoreScreen.h"
#include "dashboard/LogScreen.h"
#include "dashboard/TodayScreen.h"
#include "exercise/BrowseExerciseScreen.h"
#include "exercise/ExerciseScreen.h"
#include "food/CustomEntryScreen.h"
#include "food/FoodScreen.h"
#include "food/SearchFoodScreen.h"
#include "setup/BirthdayScreen.h"
#include "setup/EnterWtScreen.h"
#include "setup/GenderScreen.h"
#include "setup/GoalWeightScreen.h"
#include "setup/HeightScreen.h"
#include "setup/MeasureUnitScreen.h"
#include "store/AppState.h"
#include "support/AppHarness.h"
#include "ui/TabBarController.h"

namespace {

// One maker per screen type.
template <class... Screens>
std::vector<ViewController* (*)()> makers() {
    return {+[]() -> ViewController* { return new Screens; }...};
}

QStringList qmlWarnings;
void collect(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type != QtDebugMsg && type != QtInfoMsg) qmlWarnings.append(message);
}

}  // namespace

TEST(Layouts, LoadWithoutWarningsInBothIdioms) {
    for (const bool pad : {false, true}) {
        AppHarness app({.pad = pad, .firstTime = QString("no")});
        app.launch();
        NavigationController* nav = AppState::shared().tabBarController->viewControllers()[0];
        for (const auto make :
             makers<BirthdayScreen, BrowseExerciseScreen, CustomEntryScreen, EnterWtScreen,
                    ExerciseScreen, FoodScreen, GenderScreen, GoalWeightScreen, HeightScreen,
                    LogScreen, MeasureUnitScreen, MoreScreen, SearchFoodScreen, TodayScreen>()) {
            qmlWarnings.clear();
            const auto previous = qInstallMessageHandler(collect);
            ViewController* screen = make();
            const QString layout =
                screen->metaObject()->className() + QString(pad ? " on a pad" : "");
            nav->pushViewController(screen, false);
            app.settle(30);
            EXPECT_NE(app.layoutOf(screen), nullptr)
                << layout.toStdString() << " is drawn by no layout";
            nav->popViewController(false);
            app.settle(30);
            qInstallMessageHandler(previous);
            EXPECT_TRUE(qmlWarnings.isEmpty()) << layout.toStdString() << ":\n"
                                               << qmlWarnings.join('\n').toStdString();
        }
    }
}
