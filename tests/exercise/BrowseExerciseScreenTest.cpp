// The duration screen driven through its outlets and actions, over the real store in a throwaway
// folder: what it shows for a duration, what it books from Today, and what Done and Cancel do.
#include <gtest/gtest.h>

#include "exercise/DurationScreens.h"
#include "exercise/ExerciseScreen.h"
#include "support/AppHarness.h"

namespace {

// Two days into a 1850-calorie plan (today is day 2); 1240 eaten and 100 burned today.
class Duration : public testing::Test {
protected:
    void SetUp() override {
        const std::string db = app.prepareDatabase();
        writePlan(db, utc("2026-03-03 09:00:00"), "1850", 366);
        execSql(db,
                "UPDATE dailyData SET calorieConsumed = 1240, calorieBurned = 100 WHERE id = 2");
        app.launch();
        ASSERT_EQ(AppState::shared().consumedValue, 1240);
    }
    // Turns each wheel as a person does, and returns the total shown after each turn.
    QStringList turn(BrowseExerciseScreen* screen,
                     std::initializer_list<std::pair<int, int>> turns) {
        QStringList shown;
        for (const auto& [row, wheel] : turns) {
            screen->selectPicker()->userSelectedRow(row, wheel);
            shown << screen->calorieAmt()->text();
        }
        return shown;
    }
    std::pair<int32_t, int32_t> day() const {
        return {AppState::shared().consumedValue, AppState::shared().burnedValue};
    }
    std::vector<std::string> savedDay(int id) {
        return queryColumn(
            app.databasePath(),
            ("SELECT calorieConsumed || ' ' || calorieBurned FROM dailyData WHERE id = " +
             std::to_string(id))
                .c_str());
    }
    Button* barButton(BrowseExerciseScreen* screen, bool right) {
        const BarButtonItem* item = right ? screen->navigationItem()->rightBarButtonItem()
                                          : screen->navigationItem()->leftBarButtonItem();
        return item ? item->customView() : nullptr;
    }

    FixedClock clock{utc("2026-03-05 10:00:00")};
    AppHarness app{{.firstTime = QString("no")}};
};

}  // namespace

// On the Exercise tab the screen is a calculator: one hour to start with, whole hours in full,
// minutes at the per-hour value's sixtieth without its remainder, and nothing booked.
TEST_F(Duration, OnTheExerciseTabItShowsTheCaloriesOfADurationOnly) {
    const struct {
        const char* perHour;
        std::initializer_list<std::pair<int, int>> turns;  // row, wheel
        QStringList shown;
    } cases[] = {
        {"1308", {{23, 0}, {59, 2}}, {"30084", "31323"}},
        {"352", {{30, 2}, {0, 1}, {0, 3}}, {"502", "502", "502"}},  // the first hour stays
        {"59", {{45, 2}, {0, 0}}, {"59", "0"}},                     // minutes of it are worth 0
        {"walk", {{5, 0}, {30, 2}}, {"0", "0"}},                    // no number counts as 0
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.perHour);
        BrowseExerciseScreen* screen = pushDuration(2, "Walking", c.perHour);
        EXPECT_EQ(screen->title(), "");
        EXPECT_EQ(barButton(screen, false), nullptr);
        EXPECT_EQ(barButton(screen, true), nullptr);
        EXPECT_EQ(screen->Foodname()->text(), "Walking");
        EXPECT_EQ(screen->calorieAmt()->text(), c.perHour);
        EXPECT_EQ(turn(screen, c.turns), c.shown);
        EXPECT_EQ(day(), std::pair(1240, 100));
        tab(2)->popViewController(false);
    }
    EXPECT_EQ(savedDay(2), std::vector<std::string>{"1240 100"});
}

// From Today every wheel that settles books the whole total it shows once more: 2 h, then 1 h,
// then 30 min of 352 book 704 + 352 + 502 although 502 is shown. Done saves eaten, then burned, to
// the day the Log tab has chosen, reads the days again and leaves for Today.
TEST_F(Duration, FromTodayEveryTurnBooksTheTotalShownAndDoneSavesTheDay) {
    BrowseExerciseScreen* screen = pushDuration(0, "Boxing, in ring", "844");
    EXPECT_EQ(screen->title(), "Add Exercise");
    PickerView* picker = screen->selectPicker();
    EXPECT_EQ(picker->rowCounts(), (QList<int>{24, 1, 60, 1}));
    QStringList titles;
    for (const auto& [row, wheel] : {std::pair(0, 0), {23, 0}, {0, 1}, {0, 2}, {59, 2}, {0, 3}})
        titles << screen->pickerViewTitleForRowForComponent(row, wheel);
    EXPECT_EQ(titles, (QStringList{"0", "23", "Hour", "0", "59", "Min"}));
    EXPECT_EQ(picker->selectedRowInComponent(0), 1);
    EXPECT_EQ(screen->calorieAmt()->text(), "844");
    EXPECT_EQ(day(), std::pair(1240, 100));  // opening books nothing
    for (const auto& [button, title, width] : {std::tuple(barButton(screen, false), "Cancel", 70),
                                               std::tuple(barButton(screen, true), "Done", 50)}) {
        ASSERT_NE(button, nullptr);
        EXPECT_EQ(button->title(), title);
        EXPECT_EQ(button->frame(), QRectF(0, 0, width, 38));
        EXPECT_EQ(button->titleColor(), QColor(255, 59, 48));
    }
    tab(0)->popViewController(false);

    screen = pushDuration(0, "Aerobics, low impact", "352");
    EXPECT_EQ(turn(screen, {{2, 0}, {1, 0}, {30, 2}}), (QStringList{"704", "352", "502"}));
    EXPECT_EQ(day(), std::pair(1240 - 1558, 100 + 1558));

    AppState::shared().dayIndex = 1;  // the Log tab stands on yesterday
    barButton(screen, true)->sendTouchUpInside();
    EXPECT_EQ(savedDay(1), std::vector<std::string>{"-318 1658"});
    EXPECT_EQ(savedDay(2), std::vector<std::string>{"1240 100"});
    const auto yesterday =
        std::find_if(AppState::shared().dailyRows.begin(), AppState::shared().dailyRows.end(),
                     [](const DayRow& row) { return row[0] == "1"; });
    ASSERT_NE(yesterday, AppState::shared().dailyRows.end());
    EXPECT_EQ((*yesterday)[2] + " " + (*yesterday)[3], "-318 1658");
    EXPECT_EQ(tab(0)->viewControllers().size(), 1);
}

// Cancel goes back to the list only, saves nothing and takes back nothing the wheels booked.
TEST_F(Duration, CancelGoesBackOneAndKeepsWhatTheWheelsBooked) {
    tab(0)->pushViewController(new ExerciseScreen(layoutFor("ExerciseScreen")), false);
    BrowseExerciseScreen* screen = pushDuration(0, "Walking", "141");
    turn(screen, {{3, 0}});
    barButton(screen, false)->sendTouchUpInside();
    EXPECT_STREQ(tab(0)->topViewController()->metaObject()->className(), "ExerciseScreen");
    EXPECT_EQ(day(), std::pair(1240 - 423, 100 + 423));
    EXPECT_EQ(savedDay(2), std::vector<std::string>{"1240 100"});
}
