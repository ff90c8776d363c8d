// A first start on a fresh data folder, walked through the six set-up steps the way a person
// does it, on the real window drawn offscreen: tap the choices, type the weights, turn the
// wheels, press the birthday button. Every step is saved as a screenshot.
#include <gtest/gtest.h>

#include <QQuickItem>
#include <QSettings>

#include "app/TabBar.h"
#include "setup/BirthdayScreen.h"
#include "setup/CalorieBudget.h"
#include "setup/HeightScreen.h"
#include "setup/PlanDays.h"
#include "store/AppState.h"
#include "support/AppHarness.h"

using namespace std::chrono;

namespace {

// The phone walks through in Metric as a man, the pad in Imperial as a woman.
class Wizard : public testing::TestWithParam<bool> {
protected:
    bool pad() const { return GetParam(); }
    const char* unit() const { return pad() ? "Imperial" : "Metric"; }
    const char* gender() const { return pad() ? "Female" : "Male"; }
    QString shot(const char* step) {
        return (pad() ? "pad" : "phone") + QString("-wizard-") + step;
    }
};

template <class Screen>
Screen* topOf(AppHarness& app) {
    return qobject_cast<Screen*>(app.window()->rootViewController()->topViewController());
}

// Flicks the wheel now showing title by about rows (positive: on to later titles) and waits
// until it has come to rest, as the choice is made only then.
bool turn(AppHarness& app, const QString& title, int rows) {
    QQuickItem* wheel = app.findByName(title);
    if (!wheel) return false;
    const qreal rowHeight = wheel->height() / 5;
    app.drag(wheel->mapToScene(QPointF(wheel->width() / 2, wheel->height() / 2)),
             -rows * rowHeight);
    for (int waited = 0; wheel->property("moving").toBool() && waited < 10000; waited += 100)
        app.settle(100);
    return !wheel->property("moving").toBool();
}

}  // namespace

TEST_P(Wizard, FirstStartGoesThroughSixStepsToTheTabs) {
    HarnessOptions options;
    options.pad = pad();
    AppHarness app(options);
    app.launch();
    const AppState& state = AppState::shared();

    // 1: nothing chosen yet is answered by the alert.
    ASSERT_TRUE(app.click("Next"));
    ASSERT_NE(app.findByName("Select one measuring unit"), nullptr);
    app.saveScreenshot(shot("0-alert"));
    ASSERT_TRUE(app.click("Ok"));
    ASSERT_TRUE(app.click("Imperial"));
    ASSERT_TRUE(app.click(unit()));
    EXPECT_EQ(state.measureUnit, unit());
    app.saveScreenshot(shot("1-unit"));
    ASSERT_TRUE(app.click("Next"));

    // 2 and 3: the field has the keyboard at once.
    ASSERT_NE(app.findByName("Starting Weight"), nullptr);
    app.type("80");
    app.saveScreenshot(shot("2-weight"));
    ASSERT_TRUE(app.click("Next"));
    ASSERT_NE(app.findByName("Goal Weight"), nullptr);
    app.type("70");
    app.saveScreenshot(shot("3-goal"));
    ASSERT_TRUE(app.click("Next"));
    EXPECT_EQ(state.goalWeightValue, 70.0f);

    // 4
    ASSERT_TRUE(app.click(gender()));
    EXPECT_EQ(state.genderValue, pad() ? 1 : 0);
    app.saveScreenshot(shot("4-gender"));
    ASSERT_TRUE(app.click("Next"));

    // 5: the wheels start on 40 cm, or on 1 foot 0 inches.
    auto* height = topOf<HeightScreen>(app);
    ASSERT_NE(height, nullptr);
    if (pad()) {
        ASSERT_TRUE(turn(app, "1", 3));
        ASSERT_TRUE(turn(app, "0", 2));
        EXPECT_GT(state.heightFeet, 1);
        EXPECT_GT(state.heightInches, 0);
        EXPECT_EQ(height->htLbl()->text(),
                  QString("%1 Feet %2 inch").arg(state.heightFeet).arg(state.heightInches));
    } else {
        ASSERT_TRUE(turn(app, "40", 3));
        EXPECT_GT(state.heightCm, 40);
        EXPECT_EQ(height->htLbl()->text(), QString::number(state.heightCm) + " cm");
    }
    EXPECT_NE(app.findByName(height->htLbl()->text()), nullptr);
    app.saveScreenshot(shot("5-height"));
    ASSERT_TRUE(app.click("Next"));

    // 6: an earlier year on the year wheel, then the button.
    auto* birthday = topOf<BirthdayScreen>(app);
    ASSERT_NE(birthday, nullptr);
    const int startYear = birthday->datePicker()->year();
    ASSERT_TRUE(turn(app, QString::number(startYear), -2));
    const int year = birthday->datePicker()->year();
    EXPECT_LT(year, startYear);
    EXPECT_EQ(calendarDay(birthday->datePicker()->date()).year, year);
    app.saveScreenshot(shot("6-birthday"));
    ASSERT_TRUE(app.click("Start my plan"));

    // The tab interface, over the wizard.
    EXPECT_NE(topOf<TabBar>(app), nullptr);
    EXPECT_NE(app.findByName("Today"), nullptr);
    app.saveScreenshot(shot("7-tabs"));

    EXPECT_EQ(birthday->age, calendarDay(Clock::now()).year - year);
    const std::string db = app.databasePath();
    EXPECT_EQ(queryColumn(db, "SELECT calorieBudget FROM profileData WHERE id = 2"),
              std::vector<std::string>{std::to_string(calorieBudget(state, birthday->age))});
    const auto start =
        DateFormatter("yyyy-MM-dd HH:mm:ss zzz")
            .parse(queryColumn(db, "SELECT startingDate FROM profileData WHERE id = 2").at(0));
    ASSERT_TRUE(start.has_value());
    EXPECT_LT(abs(Clock::now() - *start), minutes(1));
    // The test's zone is UTC, where every day has 86,400 seconds.
    expectPlanDays(db, [&](int i) { return englishDayLabel(floor<days>(*start) + days(i)); });
    EXPECT_EQ(QSettings(app.defaultsFile(), QSettings::IniFormat).value("firstTime"), "no");

    // The next start goes straight to the tabs.
    app.launch();
    EXPECT_NE(qobject_cast<TabBar*>(app.window()->rootViewController()->viewControllers().first()),
              nullptr);
}

INSTANTIATE_TEST_SUITE_P(Idioms, Wizard, testing::Values(false, true),
                         [](const auto& info) { return info.param ? "Pad" : "Phone"; });
