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
    void enter(bool exercise, const char* text) {
        AppState::shared().customEntryIsExercise = exercise;
        tab(0)->pushViewController(new CustomEntryScreen, false);
        auto* screen = qobject_cast<CustomEntryScreen*>(tab(0)->topViewController());
        EXPECT_TRUE(screen->calorieTxt()->firstResponder());
        screen->calorieTxt()->setText(text);
        screen->nextButton();
        EXPECT_EQ(tab(0)->viewControllers().size(), 1);
    }
    std::string day(int id) { return dayInFile(app.databasePath(), id); }

    AppHarness app{{.firstTime = QString("no")}};
};

}  // namespace

// The text's integer value, 0 when it has none, is added and written, whatever it is.
TEST_F(CustomEntry, FoodAddsTheIntegerValueOfTheText) {
    int32_t expected = 0;
    for (auto [text, value] :
         {std::pair{"12abc", 12}, {"abc", 0}, {" 7", 7}, {"-50", -50}, {"", 0}}) {
        SCOPED_TRACE(text);
        enter(false, text);
        expected += value;
        EXPECT_EQ(day(0), std::to_string(expected) + " 0");
    }
}

// Burned calories are added to burned and taken off consumed; consumed is written first, then
// burned, both to the day being edited (not today, whose view reloads its own values).
TEST_F(CustomEntry, ExerciseWritesConsumedThenBurnedForTheSameDay) {
    AppState& state = AppState::shared();
    state.consumedValue = 1200;
    state.dayIndex = 4;
    LogCapture log;
    enter(true, "300");
    EXPECT_EQ(day(4), "900 300");
    const auto at = [&](const char* line) {
        return std::find(log.lines().begin(), log.lines().end(), line);
    };
    EXPECT_LT(at("today Cal 1200"), at("today Cal 900"));
    EXPECT_LT(at("UPDATE dailyData SET \"calorieConsumed\"=\"900\" WHERE id=\"4\";"),
              at("UPDATE dailyData SET \"calorieBurned\"=\"300\" WHERE id=\"4\";"));
    EXPECT_EQ(state.dailyRows[4][3], "300");
}
