// Every screen, in both idioms, is drawn by a layout that loads and binds without a single QML
// warning; the design canvas fills windows of other sizes; a field is lifted above a keyboard.
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
#include "support/AppHarness.h"
#include "ui/KeyboardLift.h"
#include "ui/NavigationController.h"
#include "ui/Window.h"

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
        for (const auto make :
             makers<BirthdayScreen, BrowseExerciseScreen, CustomEntryScreen, EnterWtScreen,
                    ExerciseScreen, FoodScreen, GenderScreen, GoalWeightScreen, HeightScreen,
                    LogScreen, MeasureUnitScreen, MoreScreen, SearchFoodScreen, TodayScreen>()) {
            qmlWarnings.clear();
            const auto previous = qInstallMessageHandler(collect);
            ViewController* screen = make();
            SCOPED_TRACE(screen->metaObject()->className() + std::string(pad ? " on a pad" : ""));
            tab(0)->pushViewController(screen, false);
            app.settle(30);
            EXPECT_NE(app.layoutOf(screen), nullptr) << "drawn by no layout";
            tab(0)->popViewController(false);
            app.settle(30);
            qInstallMessageHandler(previous);
            EXPECT_TRUE(qmlWarnings.isEmpty()) << qmlWarnings.join('\n').toStdString();
        }
    }
}

TEST(Canvas, FillsTheWindowAtTheLargestScaleThatFitsAndCentresTheRest) {
    struct Case {
        QSizeF design, window;
        qreal scale;
        QSizeF canvas;
        qreal x;
    };
    const Case cases[] = {
        {{320, 568}, {320, 568}, 1, {320, 568}, 0},
        {{320, 568}, {360, 720}, 1.125, {320, 640}, 0},      // a Linux phone: filled, taller
        {{320, 568}, {640, 1136}, 2, {320, 568}, 0},
        {{320, 568}, {1280, 800}, 800 / 568.0, {320, 568}, 414},  // a desktop: centred
        {{768, 1024}, {1280, 800}, 800 / 1024.0, {768, 1024}, 340},
        {{320, 568}, {300, 400}, 400 / 568.0, {320, 568}, 37},    // smaller than the design
    };
    for (const Case& c : cases) {
        Window window;
        window.setDesignSize(c.design);
        window.setViewport(c.window);
        SCOPED_TRACE(QString("%1x%2").arg(c.window.width()).arg(c.window.height()).toStdString());
        EXPECT_DOUBLE_EQ(window.canvasScale(), c.scale);
        EXPECT_EQ(window.canvasSize(), c.canvas);  // within QSizeF's fuzzy comparison
        EXPECT_EQ(window.canvasX(), c.x);
    }
}

TEST(KeyboardLift, LiftsAFieldTheKeyboardWouldCoverJustClearOfItAndNoFurther) {
    const QRectF keyboard(0, 400, 360, 320);
    EXPECT_EQ(KeyboardLift::liftFor(QRectF(20, 100, 300, 40), keyboard), 0);         // above it
    EXPECT_EQ(KeyboardLift::liftFor(QRectF(20, 500, 300, 40), keyboard), 148);       // 540 + 8 - 400
    EXPECT_EQ(KeyboardLift::liftFor(QRectF(20, 30, 300, 500), keyboard), 22);        // top kept in
    EXPECT_EQ(KeyboardLift::liftFor(QRectF(20, 500, 300, 40), QRectF()), 0);         // no keyboard
}
