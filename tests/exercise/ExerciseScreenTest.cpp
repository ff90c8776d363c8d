// The activity list driven through its outlets and actions, as the root of a navigation stack:
// browsing with headers and the index bar, searching, and the activity it hands on.
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
    QString cell(IndexPath at) {
        TableViewCell* c = table()->cellForRow(flatRow(at));
        const QString text = c ? c->textLabel()->text() : QString("none");
        table()->enqueueReusableCell(c);
        return text;
    }
    int flatRow(IndexPath at) {
        int row = 0;
        for (int64_t s = 0; s < at.section; ++s) row += int(table()->numberOfRowsInSection(s));
        return row + int(at.row);
    }
    // Selects a row as a tap does; the duration screen it pushed, with the name and per-hour text.
    QString pick(IndexPath at) {
        table()->userSelectedRow(flatRow(at));
        auto* duration = qobject_cast<BrowseExerciseScreen*>(nav.topViewController());
        if (!duration || nav.viewControllers().size() != 2) return "nothing pushed";
        const QString picked = duration->item() + " " + duration->item1();
        nav.popViewController(false);
        return picked;
    }
    QStringList rowsShown() {
        QStringList shown;
        for (int64_t r = 0; r < table()->numberOfRowsInSection(0); ++r) shown << cell({0, r});
        return shown;
    }

    ExerciseScreen* screen = new ExerciseScreen;
    NavigationController nav;
};

}  // namespace

// Twenty sections under red letter headers; every reload hands the letters to the bar again,
// which lays itself out afresh. A pick passes the list's own per-hour value and deselects.
TEST_F(ExerciseList, BrowsingShowsSectionsWithHeadersAndPicksTheListsValue) {
    EXPECT_EQ(screen->title(), "Exercise");
    screen->indexBar()->setLaidOutSize(QSizeF(20, 378));
    EXPECT_EQ(table()->numberOfSections(), 20);
    EXPECT_EQ(screen->indexBar()->indexes(), screen->catalogue().sections());
    EXPECT_EQ(screen->indexBar()->delegate(), screen);
    EXPECT_EQ(nav.barTintColor(), Theme::tint());
    QPointer<QObject> letterA = screen->indexBar()->sublayers()->objects().value(1);
    table()->reloadData();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(letterA.isNull());
    EXPECT_EQ(screen->indexBar()->sublayers()->count(), 28);

    EXPECT_EQ(table()->numberOfRowsInSection(2), 8);  // C: its two surplus values never shown
    EXPECT_EQ(cell({2, 7}), "Cycling, 16-19 mph, very fast, racing");
    EXPECT_EQ(cell({14, 2}), "Running, 6 mph (10 min mile)");
    EXPECT_EQ(table()->dequeueReusableCellWithIdentifier("TableViewCellId")->reuseIdentifier(),
              "TableViewCellId");

    View* header = table()->headerViewForSection(3);
    ASSERT_NE(header, nullptr);
    EXPECT_EQ(header->frame(), QRectF(0, 200, 768, 244));
    ASSERT_EQ(header->subviews().size(), 1);
    auto* label = qobject_cast<Label*>(header->subviews()[0]);
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->frame(), QRectF(0, 0, 768, 20));
    EXPECT_EQ(label->text(), "D");
    EXPECT_EQ(label->backgroundColor(), Theme::tint());
    EXPECT_EQ(label->textColor(), QColor(Qt::white));
    EXPECT_EQ(label->fontName() + " " + QString::number(label->fontSize()), "Arial-Bold 13");

    LogCapture log;
    EXPECT_EQ(pick({3, 0}), "Darts (wall or lawn) 176");
    EXPECT_TRUE(log.contains("Darts (wall or lawn) 176"));
    EXPECT_EQ(pick({19, 8}), "Watering lawn or garden 106");
    EXPECT_FALSE(table()->indexPathForSelectedRow());
    EXPECT_TRUE(table()->deselectionAnimated());
}

// The bar's callback scrolls row 0 of a section the table has to the top, animated; a section
// it lacks (past the end, negative, the bar's not-found marker) is ignored, in either mode.
TEST_F(ExerciseList, IndexCallbacksScrollToSectionsTheTableHas) {
    QSignalSpy scrolls(table(), &TableView::scrollRequested);
    for (int64_t section : {int64_t(3), int64_t(20), int64_t(-1), indexbar::kNotFound, int64_t(19)})
        screen->tableViewIndexBar(screen->indexBar(), section);
    ASSERT_EQ(scrolls.size(), 2);
    EXPECT_EQ(scrolls[0],
              (QVariantList{26, QVariant::fromValue(TableView::ScrollPosition::Top), true}));
    EXPECT_EQ(scrolls[1][0], 116);

    bar()->userChangedText("golf");
    screen->tableViewIndexBar(screen->indexBar(), 3);
    screen->tableViewIndexBar(screen->indexBar(), 0);
    ASSERT_EQ(scrolls.size(), 3);
    EXPECT_EQ(scrolls[2][0], 0);
}

// Each change searches the whole catalogue in one section without headers, the bar hidden; hits
// carry the search's own per-hour values. The search button keeps the results; the empty text
// and Cancel go back to browsing.
TEST_F(ExerciseList, SearchingListsHitsWithTheirSearchValuesUntilClearedOrCancelled) {
    EXPECT_EQ(screen->emptyListHint(), "");  // browsing is never empty
    bar()->userBeganEditing();
    EXPECT_TRUE(bar()->showsCancelButton());
    bar()->userChangedText("running");
    EXPECT_TRUE(screen->search);
    EXPECT_TRUE(screen->indexBar()->hidden());
    EXPECT_EQ(table()->numberOfSections(), 1);
    EXPECT_EQ(table()->headerViewForSection(0), nullptr);
    EXPECT_EQ(rowsShown(), (QStringList{"Running, 6 mph (10 min mile)", "Running, general",
                                        "Running, 6 mph (10 min mile)", "Running, stairs, up"}));
    QStringList picks;
    for (int row = 0; row < 4; ++row) picks << pick({0, row});
    EXPECT_EQ(picks, (QStringList{"Running, 6 mph (10 min mile) 317", "Running, general 563",
                                  "Running, 6 mph (10 min mile) 317", "Running, stairs, up 563"}));

    bar()->userChangedText("Darts");
    EXPECT_EQ(pick({0, 0}), "Darts (wall or lawn) 817");

    bar()->userChangedText("Darts, indoors");
    EXPECT_EQ(table()->numberOfSections(), 1);
    EXPECT_EQ(table()->numberOfRowsInSection(0), 0);
    EXPECT_EQ(screen->emptyListHint(), "No activity has this in its name.");
    EXPECT_TRUE(screen->indexBar()->hidden());

    bar()->userChangedText("horse");
    const int64_t horses = table()->numberOfRowsInSection(0);
    EXPECT_EQ(horses, 8);
    bar()->becomeFirstResponder();
    bar()->userPressedSearch();
    EXPECT_FALSE(bar()->firstResponder());
    EXPECT_EQ(table()->numberOfRowsInSection(0), horses);
    EXPECT_TRUE(screen->indexBar()->hidden());

    bar()->userChangedText("");
    EXPECT_EQ(screen->emptyListHint(), "");
    EXPECT_FALSE(screen->search);
    EXPECT_FALSE(screen->indexBar()->hidden());
    EXPECT_EQ(table()->numberOfSections(), 20);
    EXPECT_EQ(int64_t(screen->results().searchresultID.size()), horses);  // kept, unseen

    bar()->userChangedText("walk");
    bar()->userPressedCancel();
    EXPECT_FALSE(screen->search);
    EXPECT_FALSE(screen->indexBar()->hidden());
    EXPECT_FALSE(bar()->showsCancelButton());
    EXPECT_EQ(bar()->text(), "");
    EXPECT_EQ(table()->numberOfSections(), 20);
    EXPECT_EQ(pick({0, 0}), "Aerobics, low impact 352");
}
