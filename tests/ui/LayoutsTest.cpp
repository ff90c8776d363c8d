// Every screen, in both idioms, is drawn by a layout that loads and binds without a single QML
// warning: a broken layout is caught here before a person sees it.
#include <gtest/gtest.h>

#include <functional>

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

using Factory = std::function<ViewController*()>;
template <class Screen>
Factory make() {
    return [] { return new Screen; };
}

const std::map<QString, Factory>& screens() {
    static const std::map<QString, Factory> all = {
        {"MeasureUnitScreen", make<MeasureUnitScreen>()},
        {"TodayScreen", make<TodayScreen>()},
        {"LogScreen", make<LogScreen>()},
        {"SearchFoodScreen", make<SearchFoodScreen>()},
        {"CustomEntryScreen", make<CustomEntryScreen>()},
        {"FoodScreen", make<FoodScreen>()},
        {"ExerciseScreen", make<ExerciseScreen>()},
        {"BrowseExerciseScreen", make<BrowseExerciseScreen>()},
        {"MoreScreen", make<MoreScreen>()},
        {"EnterWtScreen", make<EnterWtScreen>()},
        {"GoalWeightScreen", make<GoalWeightScreen>()},
        {"GenderScreen", make<GenderScreen>()},
        {"HeightScreen", make<HeightScreen>()},
        {"BirthdayScreen", make<BirthdayScreen>()},
    };
    return all;
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
        for (const auto& [name, factory] : screens()) {
            const QString layout = name + (pad ? " on a pad" : "");
            qmlWarnings.clear();
            const auto previous = qInstallMessageHandler(collect);
            ViewController* screen = factory();
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
