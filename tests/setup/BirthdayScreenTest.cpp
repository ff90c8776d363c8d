// The last set-up step: what one press of its button stores, the age and budget it works out,
// and the plan's day rows, across a daylight-saving change too.
#include <gtest/gtest.h>

#include "app/TabBar.h"
#include "setup/BirthdayScreen.h"
#include "setup/PlanDays.h"
#include "setup/WizardApp.h"
#include "ui/TabBarController.h"

using namespace std::chrono;
using namespace std::chrono_literals;

namespace {

struct Answers {
    const char* unit;
    float goal;
    int32_t gender;
    int32_t cm;
    int32_t feet;
    int32_t inches;
};

void answer(const Answers& a) {
    AppState& state = AppState::shared();
    state.measureUnit = a.unit;
    state.goalWeightValue = a.goal;
    state.genderValue = a.gender;
    state.heightCm = a.cm;
    state.heightFeet = a.feet;
    state.heightInches = a.inches;
}

std::string profile(WizardApp& app, const char* column) {
    const auto values =
        queryColumn(app.databasePath(),
                    (std::string("SELECT ") + column + " FROM profileData WHERE id = 2").c_str());
    return values.empty() ? "(no row)" : values.front();
}

// Presses the step's button with the picker on year-month-day.
BirthdayScreen* pressWithBirthday(WizardApp& app, int year, int month, int day) {
    auto* screen = app.start<BirthdayScreen>();
    screen->datePicker()->setYearMonthDay(year, month, day);
    screen->selectDate(nullptr);
    return screen;
}

}  // namespace

TEST(SelectDate, FinishesSetUpInOnePress) {
    WizardApp app;
    FixedClock clock(utc("2026-11-15 09:30:00"));
    answer({"Metric", 70.0f, 0, 175, 0, 0});
    AppState::shared().defaults = nullptr;
    auto* screen = app.start<BirthdayScreen>();
    screen->animatedView()->setHidden(true);  // as the layout has it
    // 30 December 1996 lies in the first week of 1997: the label shows the week's year, while
    // the age counts the calendar year.
    screen->datePicker()->setYearMonthDay(1996, 12, 30);
    screen->selectDate(nullptr);

    EXPECT_FALSE(screen->animatedView()->hidden());
    EXPECT_EQ(screen->dateLbl()->text(), "December 30,1997");
    EXPECT_EQ(screen->age, 30);
    EXPECT_EQ(AppState::shared().calorieBudgetValue, 1703);
    EXPECT_EQ(profile(app, "calorieBudget"), "1703");
    const std::string start = profile(app, "startingDate");
    EXPECT_EQ(start, "2026-11-15 09:30:00 +0000");
    EXPECT_EQ(DateFormatter("yyyy-MM-dd HH:mm:ss zzz").parse(start), Clock::now());

    EXPECT_EQ(AppState::shared().defaults, app.standardUserDefaults());
    EXPECT_EQ(app.firstTimeOnDisk(), "no");

    expectPlanDays(app.databasePath(), [](int i) {
        return englishDayLabel(sys_days(2026y / November / 15) + days(i));
    });

    // The tab interface, over the wizard, which stays beneath it.
    ASSERT_EQ(app.nav()->viewControllers().size(), 2);
    EXPECT_NE(app.top<TabBar>(), nullptr);
    EXPECT_NE(AppState::shared().tabBarController, nullptr);
    EXPECT_EQ(app.window()->subviews(), QList<QObject*>{AppState::shared().tabBarController});
}

TEST(SelectDate, BudgetFromTheAnswersAsTheyStand) {
    const struct {
        Answers answers;
        const char* budget;
    } cases[] = {
        {{"Metric", 70.3f, 0, 175, 0, 0}, "1707"},  // the float nearest 70.3, widened
        {{"Metric", 0.0f, 0, 0, 0, 0}, "-138"},     // stored as it is
        {{"", 160.0f, 0, 0, 5, 10}, "1750"},        // no unit chosen: the Imperial formula
        {{"", 130.0f, 1, 0, 5, 5}, "1313"},
    };
    for (const auto& c : cases) {
        WizardApp app;
        FixedClock clock(utc("2026-11-15 09:30:00"));
        answer(c.answers);
        pressWithBirthday(app, 1996, 6, 1);
        EXPECT_EQ(profile(app, "calorieBudget"), c.budget) << c.answers.unit << c.answers.goal;
    }
}

TEST(SelectDate, AgeCountsCalendarYearsOnly) {
    const struct {
        const char* now;
        int year, month, day;
        int64_t age;
    } cases[] = {
        {"2027-01-01 10:00:00", 2026, 12, 31, 1},
        {"2026-11-15 09:30:00", 2016, 11, 15, 10},
        {"2026-11-15 09:30:00", 2016, 11, 16, 10},  // the birthday is tomorrow: 10 all the same
    };
    for (const auto& c : cases) {
        WizardApp app;
        FixedClock clock(utc(c.now));
        answer({"Metric", 70.0f, 0, 175, 0, 0});
        EXPECT_EQ(pressWithBirthday(app, c.year, c.month, c.day)->age, c.age) << c.now;
    }
}

TEST(SelectDate, PlanDaysAreExactly86400SecondsApart) {
    ScopedTimeZone newYork("America/New_York");
    // The local date of a moment: New York keeps daylight time (UTC-4) until 1 November 2026,
    // 06:00 UTC, and again from 14 March 2027, 07:00 UTC; standard time (UTC-5) in between.
    const auto localDay = [](sys_seconds moment) {
        const bool daylight = moment < sys_days(2026y / November / 1) + 6h ||
                              moment >= sys_days(2027y / March / 14) + 7h;
        return floor<days>(moment - (daylight ? 4h : 5h));
    };
    // At noon an hour either way stays on the same day: one label per calendar day. At half
    // past midnight the clock changes show: 1 November comes twice and 14 March never.
    const struct {
        const char* start;
        std::vector<std::pair<int, const char*>> seen;
    } cases[] = {
        {"2026-10-30 16:00:00", {{2, "Sunday November 1"}, {3, "Monday November 2"}}},
        {"2026-10-31 04:30:00",
         {{1, "Sunday November 1"},
          {2, "Sunday November 1"},
          {134, "Saturday March 13"},
          {135, "Monday March 15"}}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.start);
        WizardApp app;
        FixedClock clock(utc(c.start));
        answer({"Metric", 70.0f, 0, 175, 0, 0});
        pressWithBirthday(app, 1996, 6, 1);
        const auto first = time_point_cast<seconds>(utc(c.start));
        expectPlanDays(app.databasePath(),
                       [&](int i) { return englishDayLabel(localDay(first + i * 86400s)); });
        const auto labels = queryColumn(app.databasePath(),
                                        "SELECT date FROM dailyData WHERE id >= 0 ORDER BY rowid");
        for (const auto& [id, label] : c.seen) EXPECT_EQ(labels.at(id), label) << id;
    }
}

TEST(SelectDate, EveryPressAddsAnotherPlan) {
    WizardApp app;
    answer({"Metric", 70.0f, 0, 175, 0, 0});
    BirthdayScreen* screen = pressWithBirthday(app, 1996, 6, 1);
    screen->selectDate(nullptr);
    const auto ids = queryColumn(app.databasePath(), "SELECT id FROM dailyData WHERE id >= 0");
    ASSERT_EQ(ids.size(), 732u);
    EXPECT_EQ(ids[365], "365");
    EXPECT_EQ(ids[366], "0");
    ASSERT_EQ(app.nav()->viewControllers().size(), 3);
    EXPECT_NE(qobject_cast<TabBar*>(app.nav()->viewControllers()[1]), nullptr);
    EXPECT_NE(app.top<TabBar>(), nullptr);
}

TEST(DatePicker, TurnsToDaysThatExist) {
    FixedClock clock(utc("2026-11-15 09:30:00"));
    DatePicker picker;
    EXPECT_EQ(calendarDay(picker.date()).year, 1996);  // thirty years ago to start with
    EXPECT_EQ(picker.minimumYear(), 1900);
    EXPECT_EQ(picker.maximumYear(), 2026);
    EXPECT_EQ(picker.monthNames().value(11), "December");

    picker.setYearMonthDay(2023, 2, 31);
    EXPECT_EQ(picker.day(), 28);
    EXPECT_EQ(picker.daysInMonth(), 28);
    const CalendarDay day = calendarDay(picker.date());
    EXPECT_EQ(day.year, 2023);
    EXPECT_EQ(day.month, 2);
    EXPECT_EQ(day.day, 28);
    EXPECT_EQ(picker.date() - floor<days>(picker.date()), 9h + 30min);  // the time of day stays

    picker.setYearMonthDay(1850, 1, 1);
    EXPECT_EQ(picker.year(), 1900);
}
