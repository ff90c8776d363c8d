#include "ui/TableView.h"

#include <algorithm>
#include <climits>

namespace {
// A data source that makes a new cell every time leaves one per row behind; a few per
// identifier are enough to go round a screenful, the rest are dropped.
constexpr qsizetype kMaxWaitingCells = 64;
}  // namespace

TableViewCell::TableViewCell(Style, const QString& reuseIdentifier, QObject* parent)
    : View(parent), reuseIdentifier_(reuseIdentifier) {}

int TableRows::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : table_->flatRowCount();
}

QVariant TableRows::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) return {};
    switch (role) {
        case SectionRole:
            return QString::number(table_->indexPathOf(index.row()).section);
        case SelectedRole:
            return table_->selectedRow_ == index.row();
        default:
            return {};
    }
}

QHash<int, QByteArray> TableRows::roleNames() const {
    return {{SectionRole, "section"}, {SelectedRole, "selected"}};
}

TableView::TableView(QObject* parent) : View(parent), rows_(this) {}

void TableView::reloadData() {
    rows_.beginResetModel();
    loaded_ = true;
    selectedRow_ = -1;
    for (View* header : std::as_const(headerViews_))
        if (header) header->deleteLater();
    headerViews_.clear();
    sectionStarts_.assign(1, 0);
    const int64_t sections =
        dataSource_ ? std::max<int64_t>(dataSource_->numberOfSectionsInTableView(), 0) : 0;
    for (int64_t s = 0; s < sections; ++s) {
        const int64_t rows = std::max<int64_t>(dataSource_->tableViewNumberOfRowsInSection(s), 0);
        // The list counts its rows in an int.
        sectionStarts_.push_back(std::min<int64_t>(sectionStarts_.back() + rows, INT_MAX));
    }
    rows_.endResetModel();
}

void TableView::layoutIfNeeded() {
    if (!loaded_) reloadData();
}

int64_t TableView::numberOfSections() {
    layoutIfNeeded();
    return int64_t(sectionStarts_.size()) - 1;
}

int64_t TableView::numberOfRowsInSection(int64_t section) {
    if (section < 0 || section >= numberOfSections()) return 0;
    return sectionStarts_[section + 1] - sectionStarts_[section];
}

int TableView::flatRow(IndexPath indexPath) const {
    const int64_t sections = int64_t(sectionStarts_.size()) - 1;
    if (indexPath.section < 0 || indexPath.section >= sections || indexPath.row < 0) return -1;
    const int64_t row = sectionStarts_[indexPath.section] + indexPath.row;
    return row < sectionStarts_[indexPath.section + 1] ? int(row) : -1;
}

IndexPath TableView::indexPathOf(int row) const {
    // The last section starting at or before row; empty sections start where the next one does.
    const auto next =
        std::upper_bound(sectionStarts_.begin(), sectionStarts_.end() - 1, int64_t(row));
    const int64_t section = (next - sectionStarts_.begin()) - 1;
    return {section, row - sectionStarts_[section]};
}

TableViewCell* TableView::dequeueReusableCellWithIdentifier(const QString& identifier) {
    auto waiting = reusable_.find(identifier);
    return waiting == reusable_.end() || waiting->isEmpty() ? nullptr : waiting->takeLast();
}

TableViewCell* TableView::cellForRow(int row) {
    if (!dataSource_ || row < 0 || row >= flatRowCount()) return nullptr;
    TableViewCell* cell = dataSource_->tableViewCellForRowAtIndexPath(indexPathOf(row));
    if (cell) cell->setParent(this);  // also keeps QML from taking it
    return cell;
}

void TableView::enqueueReusableCell(TableViewCell* cell) {
    if (!cell || cell->parent() != this) return;
    QList<TableViewCell*>& waiting = reusable_[cell->reuseIdentifier()];
    if (waiting.contains(cell)) return;
    if (waiting.size() < kMaxWaitingCells) {
        waiting.append(cell);
    } else {
        cell->deleteLater();  // the renderer may still be unbinding it
    }
}

View* TableRows::tableHeaderView() const {
    return table_->tableHeaderView();
}
View* TableRows::headerViewForSection(int section) {
    return table_->headerViewForSection(section);
}

View* TableView::headerViewForSection(int section) {
    if (!delegate_ || section < 0 || section >= numberOfSections()) return nullptr;
    auto found = headerViews_.find(section);
    if (found == headerViews_.end()) {
        View* view = delegate_->tableViewViewForHeaderInSection(section);
        if (view) view->setParent(this);
        found = headerViews_.insert(section, view);
    }
    return *found;
}

std::optional<IndexPath> TableView::indexPathForSelectedRow() const {
    if (selectedRow_ < 0) return std::nullopt;
    return indexPathOf(selectedRow_);
}

void TableView::setSelectedRow(int row) {
    const int previous = selectedRow_;
    if (previous == row) return;
    selectedRow_ = row;
    for (int changed : {previous, row}) {
        if (changed < 0) continue;
        const QModelIndex index = rows_.index(changed);
        emit rows_.dataChanged(index, index, {TableRows::SelectedRole});
    }
}

void TableView::userSelectedRow(int row) {
    if (row < 0 || row >= flatRowCount()) return;
    setSelectedRow(row);
    if (delegate_) delegate_->tableViewDidSelectRowAtIndexPath(indexPathOf(row));
}

void TableView::deselectRowAtIndexPath(IndexPath indexPath, bool animated) {
    const int row = flatRow(indexPath);
    if (row < 0 || row != selectedRow_) return;
    setDeselectionAnimated(animated);
    setSelectedRow(-1);
}

void TableView::scrollToRowAtIndexPath(IndexPath indexPath, ScrollPosition position,
                                       bool animated) {
    layoutIfNeeded();
    const int row = flatRow(indexPath);
    if (row >= 0) emit scrollRequested(row, position, animated);
}
