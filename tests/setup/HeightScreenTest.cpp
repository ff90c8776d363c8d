// The height step's picker: its columns per unit, titles, and what a chosen row records.
#include <gtest/gtest.h>

#include "setup/HeightScreen.h"
#include "setup/WizardApp.h"

namespace {

HeightScreen* heightIn(WizardApp& app, const char* unit) {
    AppState::shared().measureUnit = unit;
    return app.start<HeightScreen>();
}

std::vector<QString> titles(HeightScreen* screen, int component) {
    std::vector<QString> out;
    const int rows = screen->selectPicker()->rowCounts().value(component);
    for (int row = 0; row < rows; ++row)
        out.push_back(screen->pickerViewTitleForRowForComponent(row, component));
    return out;
}

}  // namespace

TEST(HeightStep, MetricIsCentimetresFrom40To300) {
    WizardApp app;
    LogCapture log;
    AppState::shared().heightCm = 180;  // an earlier visit's choice
    HeightScreen* screen = heightIn(app, "Metric");
    PickerView* picker = screen->selectPicker();
    EXPECT_EQ(picker->rowCounts(), (QList<int>{261, 1}));
    EXPECT_TRUE(log.contains("Number of rows returned for component 0 are rows 261"));
    EXPECT_TRUE(log.contains("Number of rows returned for component 1 are rows 1"));
    EXPECT_TRUE(log.contains("() ()"));  // the Imperial lists stay empty

    EXPECT_FALSE(screen->selectOne);
    const auto cm = titles(screen, 0);
    EXPECT_EQ(cm.front(), "40");
    EXPECT_EQ(cm[135], "175");
    EXPECT_EQ(cm.back(), "300");
    EXPECT_EQ(titles(screen, 1), std::vector<QString>{"cm"});
    EXPECT_TRUE(screen->selectOne);  // asking for titles counts as an answer

    // A wheel turned by code tells nobody; the earlier height stays.
    picker->selectRow(135, 0, true);
    EXPECT_EQ(picker->selectedRowInComponent(0), 135);
    EXPECT_EQ(screen->htLbl()->text(), "");
    EXPECT_EQ(AppState::shared().heightCm, 180);

    picker->userSelectedRow(135, 0);
    EXPECT_EQ(screen->htLbl()->text(), "175 cm");
    EXPECT_EQ(AppState::shared().heightCm, 175);
    // The column is not looked at: the single "cm" row reads as the first height.
    picker->userSelectedRow(0, 1);
    EXPECT_EQ(screen->htLbl()->text(), "40 cm");
    EXPECT_EQ(AppState::shared().heightCm, 40);
}

TEST(HeightStep, AnyOtherUnitIsFeetAndInches) {
    for (const char* unit : {"Imperial", ""}) {
        SCOPED_TRACE(unit);
        WizardApp app;
        LogCapture log;
        HeightScreen* screen = heightIn(app, unit);
        EXPECT_EQ(screen->selectPicker()->rowCounts(), (QList<int>{8, 1, 12, 1}));
        EXPECT_TRUE(
            log.contains("(1, 2, 3, 4, 5, 6, 7, 8) (0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11)"));
        EXPECT_TRUE(screen->mh1.empty());
        EXPECT_EQ(titles(screen, 0).back(), "8");
        EXPECT_EQ(titles(screen, 1), std::vector<QString>{"Feet"});
        EXPECT_EQ(titles(screen, 2).back(), "11");
        EXPECT_EQ(titles(screen, 3), std::vector<QString>{"inch"});
    }
}

TEST(HeightStep, ImperialKeepsTheFeetAndInchesLastChosen) {
    WizardApp app;
    HeightScreen* screen = heightIn(app, "Imperial");
    PickerView* picker = screen->selectPicker();
    const AppState& state = AppState::shared();

    // Inches alone: the feet the picker starts on ("1") are written with them.
    picker->userSelectedRow(7, 2);
    EXPECT_EQ(screen->htLbl()->text(), "1 Feet 7 inch");
    EXPECT_EQ(state.heightFeet, 1);
    EXPECT_EQ(state.heightInches, 7);

    picker->userSelectedRow(5, 0);
    picker->userSelectedRow(3, 2);
    EXPECT_EQ(screen->htLbl()->text(), "6 Feet 3 inch");
    EXPECT_EQ(state.heightFeet, 6);
    EXPECT_EQ(state.heightInches, 3);

    // The unit columns change nothing.
    picker->userSelectedRow(0, 1);
    picker->userSelectedRow(0, 3);
    EXPECT_EQ(screen->htLbl()->text(), "6 Feet 3 inch");
    EXPECT_EQ(state.heightCm, 0);
}
