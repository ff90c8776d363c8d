// The table as a data source and delegate see it, and as its renderer's list model sees it.
#include "ui/TableView.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QCoreApplication>
#include <QPointer>
#include <QSignalSpy>

namespace {

// Sections of the given sizes; cells named "s.r"; a header view for odd sections only.
class Source : public TableViewDataSource, public TableViewDelegate {
public:
    explicit Source(TableView& table, std::vector<int64_t> sizes) : table_(table), sizes(std::move(sizes)) {
        table.setDataSource(this);
        table.setDelegate(this);
    }
    int64_t numberOfSectionsInTableView() override { return int64_t(sizes.size()); }
    int64_t tableViewNumberOfRowsInSection(int64_t section) override { return sizes[section]; }
    TableViewCell* tableViewCellForRowAtIndexPath(IndexPath path) override {
        TableViewCell* cell = table_.dequeueReusableCellWithIdentifier("Cell");
        if (!cell) {
            cell = new TableViewCell(TableViewCell::Style::Default, "Cell");
            ++made;
        }
        cell->textLabel()->setText(QString("%1.%2").arg(path.section).arg(path.row));
        return cell;
    }
    View* tableViewViewForHeaderInSection(int64_t section) override {
        ++headersAsked;
        return section % 2 ? new View : nullptr;
    }
    void tableViewDidSelectRowAtIndexPath(IndexPath path) override { selected.push_back(path); }

    TableView& table_;
    std::vector<int64_t> sizes;
    int made = 0, headersAsked = 0;
    std::vector<IndexPath> selected;
};

QString text(TableView& table, int row) {
    TableViewCell* cell = table.cellForRow(row);
    const QString shown = cell ? cell->textLabel()->text() : QString("none");
    table.enqueueReusableCell(cell);
    return shown;
}

}  // namespace

// Rows of every section one after another, empty sections skipped; nothing is asked before the
// table is first laid out. A row is brought into view by its place among all rows.
TEST(TableView, SectionsAreLaidEndToEnd) {
    TableView table;
    Source source(table, {2, 0, 3});
    QAbstractItemModelTester tester(table.rows());
    QSignalSpy scrolls(&table, &TableView::scrollRequested);
    EXPECT_EQ(table.rows()->rowCount(), 0);
    table.layoutIfNeeded();
    EXPECT_EQ(table.numberOfSections(), 3);
    EXPECT_EQ(table.numberOfRowsInSection(1), 0);
    QStringList shown;
    for (int row = 0; row < 6; ++row) shown << text(table, row);
    EXPECT_EQ(shown, (QStringList{"0.0", "0.1", "2.0", "2.1", "2.2", "none"}));
    EXPECT_EQ(table.rows()->data(table.rows()->index(2), TableRows::SectionRole), "2");
    EXPECT_EQ(source.made, 1);  // one cell went round all five rows

    for (IndexPath path : {IndexPath{2, 0}, {1, 0}, {3, 0}, {-1, 0}, {2, 3}})
        table.scrollToRowAtIndexPath(path, TableView::ScrollPosition::Top, true);
    ASSERT_EQ(scrolls.size(), 1);
    EXPECT_EQ(scrolls[0][0], 2);
}

// Selecting tells the delegate and changes one row; deselecting changes it back; only
// reloadData renews the whole list, and drops the selection and the header views.
TEST(TableView, SelectionChangesOneRowAndReloadRenewsAll) {
    TableView table;
    Source source(table, {2, 3});
    QAbstractItemModelTester tester(table.rows());
    table.reloadData();
    QSignalSpy resets(table.rows(), &QAbstractItemModel::modelReset);
    QSignalSpy changes(table.rows(), &QAbstractItemModel::dataChanged);

    table.userSelectedRow(3);
    table.userSelectedRow(9);  // no such row
    EXPECT_EQ(source.selected, std::vector<IndexPath>{(IndexPath{1, 1})});
    EXPECT_TRUE(table.rows()->data(table.rows()->index(3), TableRows::SelectedRole).toBool());
    table.deselectRowAtIndexPath({1, 1}, true);
    EXPECT_TRUE(table.deselectionAnimated() && !table.indexPathForSelectedRow());
    EXPECT_EQ(changes.size(), 2);

    QPointer<View> header(table.headerViewForSection(1));
    EXPECT_EQ(table.headerViewForSection(1), header);
    EXPECT_EQ(table.headerViewForSection(0), nullptr);
    EXPECT_EQ(source.headersAsked, 2);
    table.userSelectedRow(0);
    EXPECT_EQ(resets.size(), 0);
    table.reloadData();
    EXPECT_EQ(resets.size(), 1);
    EXPECT_FALSE(table.indexPathForSelectedRow());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(header.isNull());
}
