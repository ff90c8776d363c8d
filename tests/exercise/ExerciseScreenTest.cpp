// The activity list driven through its outlets and actions, as the root of a navigation stack:
// browsing with headers and the index bar, searching, and the activity it hands on. The walks in
// the real window (tests/ui) show the rows by name and search from the keyboard.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QPointer>
#include <QSignalSpy>

#include "exercise/BrowseExerciseScreen.h"
#include "exercise/ExerciseScreen.h"
#include "exercise/IndexBarMapping.h"
#include "support/Fixtures.h"
#include "ui/Label.h"
#include "ui/NavigationController.h"
#include "ui/Theme.h"

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

    ExerciseScreen* screen = new ExerciseScreen;
    NavigationController nav;
};

}  // namespace

// Twenty sections under red letter headers, handed to the bar, which lays out afresh, on every
// reload. A pick passes the list's own per-hour value and deselects; the bar scrolls to a section.
TEST_F(ExerciseList, BrowsingShowsHeadedSectionsPicksTheListsValueAndScrollsOnlyToThem) {
    screen->indexBar()->setLaidOutSize(QSizeF(20, 378));
    EXPECT_EQ(screen->title() + " " + QString::number(table()->numberOfSections()), "Exercise 20");
    EXPECT_EQ(screen->indexBar()->indexes(), screen->catalogue().sections());
    EXPECT_TRUE(screen->indexBar()->delegate() == screen && nav.barTintColor() == Theme::tint());
    QPointer<QObject> letterA = screen->indexBar()->sublayers()->objects().value(1);
    table()->reloadData();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(letterA.isNull() && screen->indexBar()->sublayers()->count() == 28);
    EXPECT_EQ(table()->numberOfRowsInSection(2), 8);  // C: its two surplus values never shown

    View* header = table()->headerViewForSection(3);
    ASSERT_TRUE(header && header->subviews().size() == 1);
    auto* label = qobject_cast<Label*>(header->subviews()[0]);
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(std::pair(header->frame(), label->frame()),
              std::pair(QRectF(0, 200, 768, 244), QRectF(0, 0, 768, 20)));
    EXPECT_EQ(label->text() + " " + label->fontName() + " " + QString::number(label->fontSize()),
              "D Arial-Bold 13");
    EXPECT_EQ(std::pair(label->backgroundColor(), label->textColor()),
              std::pair(Theme::tint(), QColor(Qt::white)));

    LogCapture log;
    EXPECT_EQ(pick(26), "Darts (wall or lawn) 176");  // D's first: after 5 + 13 + 8
    EXPECT_TRUE(log.contains("Darts (wall or lawn) 176"));
    EXPECT_EQ(pick(124), "Watering lawn or garden 106");  // the last
    EXPECT_TRUE(!table()->indexPathForSelectedRow() && table()->deselectionAnimated());

    // The bar scrolls a section to the top; one it lacks (not-found too) is ignored.
    QSignalSpy scrolls(table(), &TableView::scrollRequested);
    for (int64_t section : {int64_t(3), int64_t(20), int64_t(-1), indexbar::kNotFound, int64_t(19)})
        screen->tableViewIndexBar(screen->indexBar(), section);
    ASSERT_EQ(scrolls.size(), 2);
    EXPECT_EQ(scrolls[0],
              (QVariantList{26, QVariant::fromValue(TableView::ScrollPosition::Top), true}));
    EXPECT_EQ(scrolls[1][0], 116);
}

// Each change searches into one section without a header or bar; hits carry the search's own
// per-hour values. The empty text, or Cancel, goes back to browsing and keeps the results unseen.
TEST_F(ExerciseList, SearchingListsHitsWithTheirSearchValuesUntilClearedOrCancelled) {
    EXPECT_EQ(screen->emptyListHint(), "");  // browsing is never empty
    bar()->userBeganEditing();
    EXPECT_TRUE(bar()->showsCancelButton());
    bar()->userChangedText("Darts, indoors");
    EXPECT_EQ(table()->numberOfRowsInSection(0), 0);
    EXPECT_EQ(screen->emptyListHint(), "No activity has this in its name.");
    bar()->userChangedText("running");
    EXPECT_TRUE(screen->search && screen->indexBar()->hidden());
    EXPECT_EQ(table()->numberOfSections(), 1);
    EXPECT_EQ(table()->numberOfRowsInSection(0), 4);
    EXPECT_EQ(table()->headerViewForSection(0), nullptr);
    EXPECT_EQ(pick(3), "Running, stairs, up 563");  // the list pairs it with 1056
    QSignalSpy scrolls(table(), &TableView::scrollRequested);
    for (int64_t section : {1, 0}) screen->tableViewIndexBar(screen->indexBar(), section);
    ASSERT_EQ(scrolls.size(), 1);  // to the one section's top only
    EXPECT_EQ(scrolls[0][0], 0);

    bar()->userChangedText("");
    EXPECT_EQ(screen->emptyListHint(), "");
    EXPECT_FALSE(screen->search || screen->indexBar()->hidden());
    EXPECT_EQ(table()->numberOfSections(), 20);
    EXPECT_EQ(screen->results().searchresultID.size(), 4u);
    bar()->userChangedText("walk");
    bar()->userPressedCancel();
    EXPECT_FALSE(screen->search || screen->indexBar()->hidden() || bar()->showsCancelButton());
    EXPECT_EQ(bar()->text(), "");
    EXPECT_EQ(pick(0), "Aerobics, low impact 352");
}
