// Calories typed by hand, eaten or burned, driven through the screen's field and "Done". The
// food walk (tests/ui) types them into the real window; the text's value is TextValueTest's.
#include <gtest/gtest.h>

#include "food/CustomEntryScreen.h"
#include "store/AppState.h"
#include "support/AppHarness.h"

// Eaten calories add to consumed; burned ones to burned and off consumed, written in that order
// to the day being edited, not today; the days are read again and "Done" goes back.
TEST(CustomEntry, WritesConsumedThenBurnedForTheDayBeingEdited) {
    AppHarness app({.firstTime = QString("no")});
    app.launch();
    AppState& state = AppState::shared();
    const auto enter = [&](bool exercise, const char* text) {
        state.customEntryIsExercise = exercise;
        auto* screen = new CustomEntryScreen;
        tab(0)->pushViewController(screen, false);
        EXPECT_TRUE(screen->calorieTxt()->firstResponder());
        screen->calorieTxt()->setText(text);
        screen->nextButton();
        EXPECT_EQ(tab(0)->viewControllers().size(), 1);
    };
    state.dayIndex = 4;
    enter(false, "1212abc");
    EXPECT_EQ(dayInFile(app.databasePath(), 4), "1212 0");
    state.consumedValue = 1200;  // Today, back on top, has reloaded today's own values
    LogCapture log;
    enter(true, "300");
    EXPECT_EQ(dayInFile(app.databasePath(), 4), "900 300");
    EXPECT_EQ(dayInFile(app.databasePath(), 0), "0 0");
    EXPECT_EQ(state.dailyRows[4][3], "300");
    std::vector<std::string> writes;
    for (const std::string& line : log.lines())
        if (line.starts_with("today Cal") || line.starts_with("UPDATE")) writes.push_back(line);
    EXPECT_EQ(writes, (std::vector<std::string>{
                          "today Cal 1200", "today Cal 900",
                          "UPDATE dailyData SET \"calorieConsumed\"=\"900\" WHERE id=\"4\";",
                          "UPDATE dailyData SET \"calorieBurned\"=\"300\" WHERE id=\"4\";"}));
}
