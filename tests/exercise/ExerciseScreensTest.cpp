// The exercise screens driven through their outlets and actions: the letter index bar, the
// activity list (browsing, the bar, searching) and the duration screen over the real store. In
// the real window (tests/ui) they are used by name, keyboard and finger, and over AT-SPI.
#include <gtest/gtest.h>

#include <QSignalSpy>

#include "exercise/DurationScreens.h"
#include "exercise/ExerciseScreen.h"
#include "exercise/IndexBarMapping.h"
#include "exercise/SectionIndexBar.h"

namespace {

using indexbar::kNotFound;

struct Recorder : SectionIndexBarDelegate {
    void tableViewIndexBar(SectionIndexBar*, int64_t at) override { sections.push_back(at); }
    std::vector<int64_t> sections;
};

const std::vector<std::string>& catalogueSections() {
    static const auto sections = exercise::ExerciseCatalogue().sections();
    return sections;
}

// Letter n's layer: the letters keep positions 0 to 26, under the lines.
TextLayer* letter(SectionIndexBar& bar, int n) {
    return qobject_cast<TextLayer*>(bar.sublayers()->objects().value(n));
}

}  // namespace

// Laid out only once it has a size: 27 letters in cells of the height's 27th. A touch or press
// names the letter's section to the delegate.
TEST(SectionIndexBar, TouchesAndPressesNameTheLettersSection) {
    Recorder delegate;
    SectionIndexBar bar, unsized;
    for (SectionIndexBar* b : {&bar, &unsized}) {
        b->setDelegate(&delegate);
        b->setIndexes(catalogueSections());
    }
    bar.setLaidOutSize(QSizeF(20, 270));
    ASSERT_EQ(bar.sublayers()->count(), 28);
    EXPECT_EQ(std::pair(letter(bar, 26)->string(), letter(bar, 26)->frame()),
              std::pair(QString("Z"), QRectF(0, 260, 20, 10)));

    // Down on E, over N, Q, X, Y, Z, "#", past both ends; presses; a bar not laid out: below it.
    const auto at = [](int n) { return QPointF(5, (n + 0.5) * 10); };
    bar.touchesBegan(at(5));
    for (const int n : {14, 17, 24, 25, 26, 0}) bar.touchesMoved(at(n));
    bar.touchesMoved(QPointF(5, 900));
    bar.touchesMoved(QPointF(5, -55));  // 55 above the top reads as 55 below it: E
    bar.pressLetter(17);
    bar.pressLetter(27);  // no such letter
    unsized.touchesBegan(QPointF(5, 40));
    EXPECT_EQ(delegate.sections,
              (std::vector<int64_t>{3, 11, 13, 19, 19, 19, kNotFound, 19, 3, 13, 19}));
}

namespace {

class ExerciseList : public testing::Test {
protected:
    ExerciseList() : nav(screen) {}

    TableView* table() { return screen->plainTableView(); }
    SearchBar* bar() { return screen->searchBarOut(); }
    // Taps a row, counted across sections: the name and per-hour text the duration screen got.
    QString pick(int row) {
        table()->userSelectedRow(row);
        auto* duration = qobject_cast<BrowseExerciseScreen*>(nav.topViewController());
        if (!duration || nav.viewControllers().size() != 2) return "nothing pushed";
        const QString picked = duration->item() + " " + duration->item1();
        nav.popViewController(false);
        return picked;
    }
    // Which sections the bar's choices scroll to the top.
    std::vector<int> scrolledTo(std::initializer_list<int64_t> sections) {
        QSignalSpy scrolls(table(), &TableView::scrollRequested);
        for (int64_t section : sections) screen->tableViewIndexBar(screen->indexBar(), section);
        std::vector<int> rows;
        for (const QList<QVariant>& scroll : scrolls) rows.push_back(scroll[0].toInt());
        return rows;
    }

    ExerciseScreen* screen = new ExerciseScreen;
    NavigationController nav;
};

}  // namespace

// Twenty sections, handed to the bar, which scrolls to a section's first row, ignoring one the
// list lacks. A pick passes the list's own per-hour value, a search's hit the search's, and
// deselects. The empty text, or Cancel, goes back to browsing.
TEST_F(ExerciseList, PicksCarryTheListsOrTheSearchsValueAndTheBarScrollsOnlyToRealSections) {
    EXPECT_EQ(table()->numberOfRowsInSection(2), 8);  // C: its two surplus values never shown
    EXPECT_EQ(pick(26), "Darts (wall or lawn) 176");  // D's first: after 5 + 13 + 8
    EXPECT_EQ(pick(124), "Watering lawn or garden 106");  // the last
    EXPECT_EQ(scrolledTo({3, 20, -1, kNotFound, 19}), (std::vector<int>{26, 116}));

    bar()->userBeganEditing();
    bar()->userChangedText("running");
    EXPECT_EQ(table()->numberOfRowsInSection(0), 4);
    EXPECT_EQ(pick(3), "Running, stairs, up 563");  // the list pairs it with 1056
    EXPECT_EQ(scrolledTo({1, 0}), std::vector<int>{0});
    bar()->userChangedText("");
    EXPECT_EQ(table()->numberOfSections(), 20);
    bar()->userChangedText("walk");
    bar()->userPressedCancel();
    EXPECT_EQ(pick(0), "Aerobics, low impact 352");
}

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
    };
    for (const auto& c : cases) {
        BrowseExerciseScreen* screen = pushDuration(2, "Walking", c.perHour);
        EXPECT_EQ(screen->navigationItem()->rightBarButtonItem(), nullptr);
        EXPECT_EQ(turn(screen, c.turns), c.shown) << c.perHour;
        tab(2)->popViewController(false);
    }
    EXPECT_EQ(day(), std::pair(1240, 100));
}

// From Today every settled wheel books the whole total shown: 2 h, 1 h, then 30 min of 352 book
// 704 + 352 + 502. Cancel takes nothing back; Done saves to the Log tab's day and returns.
TEST_F(Duration, FromTodayEveryTurnBooksTheTotalShownUntilDoneSavesIt) {
    BrowseExerciseScreen* boxing = pushDuration(0, "Boxing, in ring", "844");
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
    EXPECT_EQ(tab(0)->viewControllers().size(), 1);
}
