#pragma once
// The activity list: the catalogue under its section letters with a letter index bar beside it,
// and a search bar that filters it by part of a name. A chosen activity opens the duration screen
// with its name and calories per hour. The root of the Exercise tab, and pushed on the Today tab
// by its add menu; the duration screen tells the two apart.
//
// Two modes: browsing (every section with its header, the index bar shown) and searching (one
// section of the names found, no header, the index bar hidden). A name found by search passes on
// the per-hour value the catalogue's search gives it, which from section D on is not the one the
// list pairs with it (see ExerciseCatalogue.h).

#include <optional>

#include "exercise/ExerciseCatalogue.h"
#include "exercise/SectionIndexBar.h"
#include "ui/SearchBar.h"
#include "ui/TableView.h"
#include "ui/ViewController.h"

class ExerciseScreen : public ViewController,
                       public TableViewDataSource,
                       public TableViewDelegate,
                       public SearchBarDelegate,
                       public SectionIndexBarDelegate {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("screens are made by code")
    Q_PROPERTY(TableView* plainTableView READ plainTableView CONSTANT)
    Q_PROPERTY(SectionIndexBar* indexBar READ indexBar CONSTANT)
    Q_PROPERTY(SearchBar* searchBarOut READ searchBarOut CONSTANT)
    // What an empty list means while searching; nothing while browsing.
    Q_PROPERTY(QString emptyListHint READ emptyListHint NOTIFY emptyListHintChanged)

public:
    explicit ExerciseScreen(QObject* parent = nullptr);

    TableView* plainTableView() { return &plainTableView_; }
    SectionIndexBar* indexBar() { return &indexBar_; }
    SearchBar* searchBarOut() { return &searchBarOut_; }
    QString emptyListHint() const;

    // Gives the bar the section letters every time the table asks.
    int64_t numberOfSectionsInTableView() override;
    int64_t tableViewNumberOfRowsInSection(int64_t section) override;
    TableViewCell* tableViewCellForRowAtIndexPath(IndexPath indexPath) override;
    View* tableViewViewForHeaderInSection(int64_t section) override;
    void tableViewDidSelectRowAtIndexPath(IndexPath indexPath) override;

    void searchBarTextDidBeginEditing() override;
    void searchBarTextDidChange(const QString& searchText) override;
    void searchBarSearchButtonClicked() override;
    void searchBarCancelButtonClicked() override;

    // Brings the section to the top of the list; a section the table does not have (the bar's
    // not-found marker among them) changes nothing.
    void tableViewIndexBar(SectionIndexBar* indexBar, int64_t section) override;

    // Built when the view loads, as every list of the screen is.
    const exercise::ExerciseCatalogue& catalogue() const { return *catalogue_; }
    // The last search's results; they outlive the search button and a return to browsing.
    const exercise::SearchResults& results() const { return results_; }
    bool search = false;  // the table shows the results, not the sections

signals:
    void emptyListHintChanged();

protected:
    void viewDidLoad() override;

private:
    // The activity and its per-hour text at a row, as the current mode shows it.
    std::pair<const std::string&, const std::string&> activityAt(IndexPath indexPath) const;
    void logResults() const;

    TableView plainTableView_;
    SectionIndexBar indexBar_;
    SearchBar searchBarOut_;
    std::optional<exercise::ExerciseCatalogue> catalogue_;
    exercise::SearchResults results_;
};
