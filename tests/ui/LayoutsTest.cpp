// Every layout, in both idioms, loads and binds without a single QML warning: a broken layout
// is caught here before a person sees it.
#include <gtest/gtest.h>

#include <QDir>
#include <QSet>
#include <functional>

#include "app/MoreScreen.h"
#include "dashboard/LogScreen.h"
#include "dashboard/TodayScreen.h"
#include "exercise/BrowseExerciseScreen.h"
#include "exercise/ExerciseScreen.h"
#include "food/CustomEntryScreen.h"
#include "food/FoodScreen.h"
#include "food/SearchFoodScreen.h"
#include "setup/MeasureUnitScreen.h"
#include "setup/BirthdayScreen.h"
#include "setup/EnterWtScreen.h"
#include "setup/GenderScreen.h"
#include "setup/GoalWeightScreen.h"
#include "setup/HeightScreen.h"
#include "store/AppState.h"
#include "support/AppHarness.h"
#include "ui/TabBarController.h"

namespace {

using Factory = std::function<ViewController*(const QString& layout)>;
template <class Screen>
Factory make() {
    return [](const QString& layout) { return new Screen(layout); };
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

TEST(Layouts, EveryLayoutHasAScreenClass) {
    QSet<QString> covered;
    for (const auto& [name, factory] : screens()) covered << name + ".qml" << name + "@iPad.qml";
    covered << "Empty.qml" << "MoreTexts.qml";
    covered << "DashboardBody.qml" << "AddButtons.qml" << "DayStepper.qml";  // shared parts
    covered << "WizardStep.qml" << "WizardChoice.qml" << "WeightEntry.qml";  // set-up pieces
    for (const QString& file : QDir(":/layouts").entryList({"*.qml"}))
        EXPECT_TRUE(covered.contains(file)) << file.toStdString() << " has no entry here";
}

TEST(Layouts, LoadWithoutWarningsInBothIdioms) {
    for (const bool pad : {false, true}) {
        AppHarness app({.pad = pad, .firstTime = QString("no")});
        app.launch();
        NavigationController* nav = AppState::shared().tabBarController->viewControllers()[0];
        for (const auto& [name, factory] : screens()) {
            const QString layout = name + (pad ? "@iPad" : "");
            qmlWarnings.clear();
            const auto previous = qInstallMessageHandler(collect);
            nav->pushViewController(factory(layout), false);
            app.settle(30);
            nav->popViewController(false);
            app.settle(30);
            qInstallMessageHandler(previous);
            EXPECT_TRUE(qmlWarnings.isEmpty())
                << layout.toStdString() << ":\n" << qmlWarnings.join('\n').toStdString();
        }
    }
}
