// The duration screen driven through its outlets and actions, over the real store in a throwaway
// folder: what it shows for a duration, what it books from Today, and what Done and Cancel do.
#include <gtest/gtest.h>

#include "exercise/DurationScreens.h"
#include "support/AppHarness.h"

namespace {

using Turns = std::initializer_list<std::pair<int, int>>;  // row, wheel

// Two days into a 1850-calorie plan (today is day 2); 1240 eaten and 100 burned today.
class Duration : public testing::Test {
protected:
    void SetUp() override {
        const std::string db = app.prepareDatabase();
        writePlan(db, utc("2026-03-03 09:00:00"), "1850", 366);
        execSql(db,
                "UPDATE dailyData SET calorieConsumed = 1240, calorieBurned = 100 WHERE id = 2");
        app.launch();
    }
    // Turns the wheels as a person does; the total shown after each turn.
    static QStringList turn(BrowseExerciseScreen* screen, Turns turns) {
        QStringList shown;
        for (const auto& [row, wheel] : turns) {
            screen->selectPicker()->userSelectedRow(row, wheel);
            shown << screen->calorieAmt()->text();
        }
        return shown;
    }
    static std::pair<int32_t, int32_t> day() {
        return {AppState::shared().consumedValue, AppState::shared().burnedValue};
    }
    std::string saved(int id) { return dayInFile(app.databasePath(), id); }

    FixedClock clock{utc("2026-03-05 10:00:00")};
    AppHarness app{{.firstTime = QString("no")}};
};

}  // namespace

// On the Exercise tab a calculator that books nothing: one hour to start with, whole hours in
// full, minutes at the per-hour value's sixtieth without its remainder.
TEST_F(Duration, OnTheExerciseTabItShowsTheCaloriesOfADurationOnly) {
    const struct {
        const char* perHour;
        Turns turns;
        QStringList shown;
    } cases[] = {
        {"1308", {{23, 0}, {59, 2}}, {"30084", "31323"}},
        {"352", {{30, 2}, {0, 1}, {0, 3}}, {"502", "502", "502"}},  // the first hour stays
        {"59", {{45, 2}, {0, 0}}, {"59", "0"}},                     // its minutes are worth 0
    };
    for (const auto& c : cases) {
        BrowseExerciseScreen* screen = pushDuration(2, "Walking", c.perHour);
        EXPECT_EQ(screen->title(), "");
        EXPECT_EQ(screen->navigationItem()->rightBarButtonItem(), nullptr);
        EXPECT_EQ(turn(screen, c.turns), c.shown) << c.perHour;
        tab(2)->popViewController(false);
    }
    EXPECT_EQ(day(), std::pair(1240, 100));
}

// From Today every settled wheel books the whole total shown: 2 h, 1 h, then 30 min of 352 book
// 704 + 352 + 502. Cancel takes nothing back; Done saves to the Log tab's day and returns. (What
// it shows on opening is the exercise walk's.)
TEST_F(Duration, FromTodayEveryTurnBooksTheTotalShownUntilDoneSavesIt) {
    BrowseExerciseScreen* boxing = pushDuration(0, "Boxing, in ring", "844");
    EXPECT_EQ(boxing->selectPicker()->rowCounts(), (QList<int>{24, 1, 60, 1}));
    EXPECT_EQ(day(), std::pair(1240, 100));  // opening books nothing

    BrowseExerciseScreen* aerobics = pushDuration(0, "Aerobics, low impact", "352");
    EXPECT_EQ(turn(aerobics, {{2, 0}, {1, 0}, {30, 2}}), (QStringList{"704", "352", "502"}));
    EXPECT_EQ(day(), std::pair(1240 - 1558, 100 + 1558));
    aerobics->CancelButton();
    EXPECT_EQ(tab(0)->topViewController(), boxing);
    EXPECT_EQ(day(), std::pair(1240 - 1558, 100 + 1558));
    EXPECT_EQ(saved(2), "1240 100");

    AppState::shared().dayIndex = 1;
    boxing->DoneButton();
    EXPECT_EQ(saved(1) + " " + saved(2), "-318 1658 1240 100");
    const DayRow& yesterday = AppState::shared().dailyRows.at(1);
    EXPECT_EQ(yesterday[2] + " " + yesterday[3], "-318 1658");
    EXPECT_EQ(tab(0)->viewControllers().size(), 1);
}
