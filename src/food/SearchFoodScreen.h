#pragma once
// Finds a food of the catalogue by part of its name, searching the whole catalogue on every
// change of the text, and opens the portion screen for the food chosen. The root of the Food tab,
// and pushed on the Today tab by its add menu; the portion screen tells the two apart.
// The screen is its table's data source and delegate and its search bar's delegate.

#include <memory>

#include "food/FoodSearch.h"
#include "ui/SearchBar.h"
#include "ui/TableView.h"
#include "ui/ViewController.h"

class SearchFoodScreen : public ViewController,
                         public TableViewDataSource,
                         public TableViewDelegate,
                         public SearchBarDelegate {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("screens are made by code")
    Q_PROPERTY(TableView* searchFoodTable READ searchFoodTable CONSTANT)
    Q_PROPERTY(SearchBar* searchBarOut READ searchBarOut CONSTANT)
    // What an empty list means: nothing typed yet, or nothing found.
    Q_PROPERTY(QString emptyListHint READ emptyListHint NOTIFY emptyListHintChanged)

public:
    explicit SearchFoodScreen(QObject* parent = nullptr);

    TableView* searchFoodTable() { return &searchFoodTable_; }
    SearchBar* searchBarOut() { return &searchBarOut_; }
    QString emptyListHint() const;

    int64_t tableViewNumberOfRowsInSection(int64_t section) override;
    TableViewCell* tableViewCellForRowAtIndexPath(IndexPath indexPath) override;
    void tableViewDidSelectRowAtIndexPath(IndexPath indexPath) override;

    void searchBarTextDidBeginEditing() override;
    void searchBarTextDidChange(const QString& searchText) override;
    void searchBarSearchButtonClicked() override;
    void searchBarCancelButtonClicked() override;

    // The results of the last search, in catalogue order: the names found (searchresult), and the
    // name, calories and unit of the first catalogue entry of each name. They outlive a return
    // to the idle state, unseen.
    const ResultList searchresult;
    const ResultList searchresultID;
    const ResultList searchCalorie;
    const ResultList searchFoodItemUnits;
    int64_t indexOfTheObject = 0;  // catalogue position of the latest hit
    bool search = false;           // a non-empty search text is in force

signals:
    void emptyListHintChanged();

protected:
    void viewDidLoad() override;

private:
    void logResults() const;

    TableView searchFoodTable_;
    SearchBar searchBarOut_;
    std::shared_ptr<const FoodSearch> catalogue_;
    std::vector<int32_t> hits_;  // where the result lists read the catalogue
};
