#pragma once
// A table: rows in sections, everything asked of its data source (how many sections and rows,
// the cell of a row) and its delegate (a section's header view, the row the user selected).
// Cells are asked for only as their rows come on screen, and go back into a queue by reuse
// identifier once their rows leave it, so a table of thousands of rows holds a screenful of
// cells. Only reloadData renews the whole list.

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <QColor>
#include <QHash>
#include <QList>
#include <cstdint>
#include <optional>
#include <vector>

#include "ui/Label.h"
#include "ui/View.h"

struct IndexPath {
    int64_t section = 0;
    int64_t row = 0;
    friend bool operator==(const IndexPath&, const IndexPath&) = default;
};

class TableViewCell : public View {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the table's data source")
    Q_PROPERTY(Label* textLabel READ textLabel CONSTANT)
    KIT_PROPERTY_INIT(QColor, backgroundColor, setBackgroundColor, Qt::white);

public:
    enum class Style { Default };  // a single text label
    TableViewCell(Style style, const QString& reuseIdentifier, QObject* parent = nullptr);

    Label* textLabel() { return &textLabel_; }
    QString reuseIdentifier() const { return reuseIdentifier_; }

private:
    Label textLabel_;
    QString reuseIdentifier_;
};

class TableViewDataSource {
public:
    virtual int64_t numberOfSectionsInTableView() { return 1; }
    virtual int64_t tableViewNumberOfRowsInSection(int64_t section) = 0;
    // A cell from dequeueReusableCellWithIdentifier, or a new one; the table takes it.
    virtual TableViewCell* tableViewCellForRowAtIndexPath(IndexPath indexPath) = 0;

protected:
    ~TableViewDataSource() = default;
};

class TableViewDelegate {
public:
    // A view drawn above the section's rows, or null for none; the table takes it.
    virtual View* tableViewViewForHeaderInSection(int64_t /*section*/) { return nullptr; }
    virtual void tableViewDidSelectRowAtIndexPath(IndexPath /*indexPath*/) {}

protected:
    ~TableViewDelegate() = default;
};

class TableView;

// The rows as the renderer's list sees them: every section's rows one after another, each
// knowing its section, whether it is selected and (asked for by the renderer) its cell.
class TableRows : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("a table's own")

public:
    enum Role { SectionRole = Qt::UserRole, SelectedRole };
    explicit TableRows(TableView* table) : table_(table) {}
    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;
    // For the header views, which have only the list to go by: the table's header view, and its
    // view for a section.
    Q_PROPERTY(View* tableHeaderView READ tableHeaderView CONSTANT)
    View* tableHeaderView() const;
    Q_INVOKABLE View* headerViewForSection(int section);

private:
    friend class TableView;
    TableView* table_;
};

class TableView : public View {
    Q_OBJECT
    // QtQuick's TableView has the plain name.
    QML_NAMED_ELEMENT(TableViewModel)
    Q_PROPERTY(TableRows* rows READ rows CONSTANT)
    // Scrolls with the rows, above the first section (the search bar of a search screen). Not
    // owned.
    KIT_PROPERTY(View*, tableHeaderView, setTableHeaderView);
    KIT_PROPERTY_INIT(QColor, backgroundColor, setBackgroundColor, Qt::white);
    // For the renderer: whether the last deselection fades out.
    KIT_PROPERTY(bool, deselectionAnimated, setDeselectionAnimated);

public:
    enum class ScrollPosition { None, Top, Middle, Bottom };
    Q_ENUM(ScrollPosition)

    explicit TableView(QObject* parent = nullptr);

    // Neither is owned; the screen that owns the table is usually both.
    void setDataSource(TableViewDataSource* dataSource) { dataSource_ = dataSource; }
    void setDelegate(TableViewDelegate* delegate) { delegate_ = delegate; }

    // Asks the data source again for everything; the selection and header views go.
    void reloadData();
    int64_t numberOfSections();
    int64_t numberOfRowsInSection(int64_t section);

    // A cell that has left the screen, as its data source left it, or null if none is waiting.
    TableViewCell* dequeueReusableCellWithIdentifier(const QString& identifier);

    std::optional<IndexPath> indexPathForSelectedRow() const;
    void deselectRowAtIndexPath(IndexPath indexPath, bool animated);
    // Ignored for a row the table does not have.
    void scrollToRowAtIndexPath(IndexPath indexPath, ScrollPosition position, bool animated);

    TableRows* rows() { return &rows_; }

    // For the renderer: the first time it shows the table (after the screen has loaded), the
    // rows are asked for unless code has done so already.
    Q_INVOKABLE void layoutIfNeeded();
    // For the renderer: the cell of a row coming on screen, and back when the row leaves.
    Q_INVOKABLE TableViewCell* cellForRow(int row);
    Q_INVOKABLE void enqueueReusableCell(TableViewCell* cell);
    // For the renderer: the header view of a section, asked of the delegate once per reload.
    Q_INVOKABLE View* headerViewForSection(int section);
    // For the renderer: the user tapped or pressed a row.
    Q_INVOKABLE void userSelectedRow(int row);

signals:
    // For the renderer: bring the row (counted over all sections) into view.
    void scrollRequested(int row, TableView::ScrollPosition position, bool animated);

private:
    friend class TableRows;
    int flatRowCount() const { return int(sectionStarts_.back()); }
    int flatRow(IndexPath indexPath) const;  // -1 if the table has no such row
    IndexPath indexPathOf(int row) const;
    void setSelectedRow(int row);

    TableRows rows_;
    TableViewDataSource* dataSource_ = nullptr;
    TableViewDelegate* delegate_ = nullptr;
    bool loaded_ = false;
    std::vector<int64_t> sectionStarts_{0};  // the first flat row of each section, then the total
    int selectedRow_ = -1;
    QHash<QString, QList<TableViewCell*>> reusable_;
    QHash<int, View*> headerViews_;
};
