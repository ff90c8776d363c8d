// Calories typed by hand, eaten or burned, driven through the screen's field and "Done".
#include <gtest/gtest.h>

#include "food/CustomEntryScreen.h"
#include "store/AppState.h"
#include "support/AppHarness.h"
#include "ui/TabBarController.h"

namespace {

class CustomEntry : public testing::Test {
protected:
    void SetUp() override { app.launch(); }
    NavigationController* todayTab() { return AppState::shared().tabBarController->viewControllers()[0]; }
    CustomEntryScreen* open(bool exercise) {
        AppState::shared().customEntryIsExercise = exercise;
        todayTab()->pushViewController(new CustomEntryScreen("CustomEntryScreen"), false);
        return qobject_cast<CustomEntryScreen*>(todayTab()->topViewController());
    }
    // Consumed and burned of day id, as the file holds them.
    std::vector<std::string> day(int id) {
        return queryColumn(app.databasePath(),
                           ("SELECT calorieConsumed || ' ' || calorieBurned FROM dailyData WHERE id = " +
                            std::to_string(id)).c_str());
    }

    AppHarness app{{.firstTime = QString("no")}};
};

}  // namespace

TEST_F(CustomEntry, EachModeHasItsTextsAndTheFieldHasTheKeyboard) {
    for (const bool exercise : {false, true}) {
        CustomEntryScreen* screen = open(exercise);
        EXPECT_EQ(screen->title(), exercise ? "Calories Burned" : "Calories");
        EXPECT_EQ(screen->detailLbl()->text(),
                  exercise ? "Enter Amount of Calories burned" : "Enter Amount of Calories");
        EXPECT_TRUE(screen->calorieTxt()->firstResponder());
        EXPECT_EQ(screen->navigationItem()->rightBarButtonItem()->customView()->title(), "Done");
        EXPECT_EQ(todayTab()->barTintColor(), QColor(255, 59, 48));
        screen->previousButton();  // back, nothing booked
        EXPECT_EQ(todayTab()->viewControllers().size(), 1);
    }
    EXPECT_EQ(day(0), std::vector<std::string>{"0 0"});
}

// The text's integer value, 0 when it has none, is added and written as it is, then the screen
// goes back to Today.
TEST_F(CustomEntry, FoodAddsTheIntegerValueOfTheText) {
    int32_t expected = 0;
    for (auto [text, value] : {std::pair{"12abc", 12}, {"abc", 0}, {" 7", 7}, {"-50", -50}, {"", 0}}) {
        SCOPED_TRACE(text);
        CustomEntryScreen* screen = open(false);
        screen->calorieTxt()->setText(text);
        screen->nextButton();
        expected += value;
        EXPECT_EQ(AppState::shared().consumedValue, expected);
        EXPECT_EQ(day(0), std::vector<std::string>{std::to_string(expected) + " 0"});
        EXPECT_EQ(todayTab()->viewControllers().size(), 1);
    }
}

// Burned calories are added to burned and taken off consumed; consumed is written first, then
// burned, both to the day being edited (not today, whose view then reloads its own values).
TEST_F(CustomEntry, ExerciseWritesConsumedThenBurnedForTheSameDay) {
    AppState& state = AppState::shared();
    state.consumedValue = 1200;
    state.burnedValue = 0;
    state.dayIndex = 4;
    CustomEntryScreen* screen = open(true);
    screen->calorieTxt()->setText("300");
    LogCapture log;
    screen->nextButton();
    EXPECT_EQ(day(4), std::vector<std::string>{"900 300"});
    const auto at = [&](const char* line) { return std::find(log.lines().begin(), log.lines().end(), line); };
    EXPECT_LT(at("today Cal 1200"), at("today Cal 900"));
    EXPECT_LT(at("UPDATE dailyData SET \"calorieConsumed\"=\"900\" WHERE id=\"4\";"),
              at("UPDATE dailyData SET \"calorieBurned\"=\"300\" WHERE id=\"4\";"));
    EXPECT_EQ(state.dailyRows[4][3], "300");
}
