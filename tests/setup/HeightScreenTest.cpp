// The height step's picker: its columns per unit, and what a row the user chooses records.
#include <gtest/gtest.h>

#include "setup/HeightScreen.h"
#include "setup/WizardApp.h"

TEST(HeightStep, ColumnsFollowTheUnitAndOnlyARowTheUserChoosesIsRecorded) {
    // Row and column turned to; then the label, heightCm, heightFeet and heightInches.
    using Turn = std::tuple<int, int, const char*, int, int, int>;
    const std::vector<Turn> metric = {
        {135, 0, "175 cm", 175, 5, 9},
        {0, 1, "40 cm", 40, 5, 9}};  // the column is not looked at: "cm" reads as row 0
    const std::vector<Turn> imperial = {
        {7, 2, "1 Feet 7 inch", 180, 1, 7},  // with the feet the picker starts on
        {5, 0, "6 Feet 7 inch", 180, 6, 7},
        {3, 2, "6 Feet 3 inch", 180, 6, 3},
        {0, 1, "6 Feet 3 inch", 180, 6, 3},  // the unit columns change nothing
        {0, 3, "6 Feet 3 inch", 180, 6, 3}};
    const struct {
        const char* unit;
        QList<int> rows;
        QStringList titles;  // of the first and the last row of each column
        const std::vector<Turn>& turns;
    } cases[] = {{"Metric", {261, 1}, {"40", "300", "cm", "cm"}, metric},
                 // No unit counts as Imperial.
                 {"", {8, 1, 12, 1}, {"1", "8", "Feet", "Feet", "0", "11", "inch", "inch"},
                  imperial}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.unit);
        WizardApp app;
        AppState& state = AppState::shared();
        state.measureUnit = c.unit;
        std::tie(state.heightCm, state.heightFeet, state.heightInches) = std::tuple(180, 5, 9);
        auto* screen = app.start<HeightScreen>();
        EXPECT_TRUE(app.nav()->navigationItem()->hidesBackButton());
        PickerView* picker = screen->selectPicker();
        EXPECT_EQ(picker->rowCounts(), c.rows);
        EXPECT_FALSE(screen->selectOne);
        QStringList titles;
        for (int column = 0; column < c.rows.size(); ++column) {
            titles << screen->pickerViewTitleForRowForComponent(0, column)
                   << screen->pickerViewTitleForRowForComponent(c.rows[column] - 1, column);
        }
        EXPECT_EQ(titles, c.titles);
        EXPECT_TRUE(screen->selectOne);

        const auto height = [&] {
            return std::tuple(screen->htLbl()->text(), state.heightCm, state.heightFeet,
                              state.heightInches);
        };
        // A wheel turned by code tells nobody: an earlier visit's height stays.
        picker->selectRow(3, 0, true);
        EXPECT_EQ(height(), std::tuple("", 180, 5, 9));
        for (const auto& [row, column, label, cm, feet, inches] : c.turns) {
            picker->userSelectedRow(row, column);
            EXPECT_EQ(height(), std::tuple(label, cm, feet, inches)) << row << "," << column;
        }
    }
}
