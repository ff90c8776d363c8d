// The last set-up step: what a press of its button stores and pushes, the plan's day rows across
// a daylight-saving change too, and its date picker.
#include <gtest/gtest.h>

#include "app/tabs/TabBar.h"
#include "setup/BirthdayScreen.h"
#include "setup/WizardApp.h"

TEST(SelectDate, FinishesSetUpInOnePressAndAgainOnTheNext) {
    // Half past midnight in New York, days of exactly 86,400 seconds show the clock changes:
    // 1 November comes twice and 14 March never. No unit counts as Imperial.
    const struct {
        const char *zone, *now, *unit;
        float goal;
        int feet, inches;
        const char *budget, *days;  // days: the labels of rows 0, 1, 2, 134 and 135
    } cases[] = {{"UTC", "2026-11-15 09:30:00", "Metric", 70.3f, 0, 0, "1707",
                  "Sunday November 15|Monday November 16|Tuesday November 17|Monday March 29|"
                  "Tuesday March 30"},
                 {"America/New_York", "2026-10-31 04:30:00", "", 160.0f, 5, 10, "1750",
                  "Saturday October 31|Sunday November 1|Sunday November 1|Saturday March 13|"
                  "Monday March 15"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.zone);
        ScopedTimeZone zone(c.zone);
        FixedClock clock(utc(c.now));
        WizardApp app;
        AppState& state = AppState::shared();
        state.measureUnit = c.unit;
        state.goalWeightValue = c.goal;
        std::tie(state.heightCm, state.heightFeet, state.heightInches) =
            std::tuple(175, c.feet, c.inches);
        auto* screen = app.start<BirthdayScreen>();
        EXPECT_TRUE(screen->animatedView()->hidden());  // until the press
        screen->datePicker()->setYearMonthDay(1996, 12, 30);
        screen->selectDate(nullptr);

        EXPECT_FALSE(screen->animatedView()->hidden());
        // 30 December 1996 lies in the first week of 1997: the label shows the week's year,
        // while the age counts calendar years.
        EXPECT_EQ(screen->dateLbl()->text(), "December 30,1997");
        EXPECT_EQ(screen->age, 30);
        const std::string db = app.databasePath();
        EXPECT_EQ(queryColumn(db, "SELECT calorieBudget || ' ' || startingDate FROM profileData "
                                  "WHERE id = 2"),
                  std::vector<std::string>{c.budget + std::string(" ") + c.now + " +0000"});
        EXPECT_EQ(app.firstTimeOnDisk(), "no");

        // One plan: ids 0 to 365 in order, labelled with the local days 86,400 seconds apart.
        std::vector<std::string> ids;
        for (int i = 0; i < 366; ++i) ids.push_back(std::to_string(i));
        const char* kIds = "SELECT id FROM dailyData WHERE id >= 0 ORDER BY rowid";  // not id -1
        EXPECT_EQ(queryColumn(db, kIds), ids);
        QStringList seen;
        for (const std::string& label : queryColumn(db, "SELECT date FROM dailyData WHERE id IN "
                                                        "(0, 1, 2, 134, 135) ORDER BY rowid"))
            seen << QString::fromStdString(label);
        EXPECT_EQ(seen.join('|'), c.days);

        // The tab interface, over the wizard, which stays beneath it.
        ASSERT_EQ(app.nav()->viewControllers().size(), 2);
        EXPECT_NE(app.top<TabBar>(), nullptr);

        // Each press runs it all again: another plan and another tab interface.
        screen->selectDate(nullptr);
        const auto once = ids;
        ids.insert(ids.end(), once.begin(), once.end());
        EXPECT_EQ(queryColumn(db, kIds), ids);
        ASSERT_EQ(app.nav()->viewControllers().size(), 3);
        EXPECT_NE(app.top<TabBar>(), nullptr);
    }
}

TEST(DatePicker, TurnsToDaysThatExist) {
    FixedClock clock(utc("2026-11-15 09:30:00"));
    DatePicker picker;  // on this day thirty years ago, the years from 1900 to this one
    EXPECT_EQ(picker.date(), utc("1996-11-15 09:30:00"));
    EXPECT_EQ(std::tuple(picker.minimumYear(), picker.maximumYear(), picker.monthNames().value(11)),
              std::tuple(1900, 2026, "December"));
    picker.setYearMonthDay(2023, 2, 31);  // the month's last day instead, at the same time
    EXPECT_EQ(picker.date(), utc("2023-02-28 09:30:00"));
    EXPECT_EQ(std::tuple(picker.day(), picker.daysInMonth()), std::tuple(28, 28));
    picker.setYearMonthDay(1850, 1, 1);
    EXPECT_EQ(picker.year(), 1900);
}
