#include "food/SearchFoodScreen.h"

#include "food/FoodScreen.h"
#include "store/AppState.h"
#include "store/DevLog.h"
#include "ui/NavigationController.h"
#include "ui/TabBarController.h"
#include "ui/Theme.h"

namespace {
const QString kCell = QStringLiteral("Cell");
}

SearchFoodScreen::SearchFoodScreen(QObject* parent)
    : ViewController(parent),
      searchresult(AppState::shared().foodNames, hits_, "foodNames"),
      searchresultID(AppState::shared().foodNames, hits_, "foodNames"),
      searchCalorie(AppState::shared().foodCalories, hits_, "foodCalories"),
      searchFoodItemUnits(AppState::shared().foodUnits, hits_, "foodUnits") {
    setTitle("Search Food");
    searchFoodTable_.setDataSource(this);
    searchFoodTable_.setDelegate(this);
    searchBarOut_.setDelegate(this);
    connect(&searchBarOut_, &SearchBar::textChanged, this, &SearchFoodScreen::emptyListHintChanged);
}

QString SearchFoodScreen::emptyListHint() const {
    return searchBarOut_.text().isEmpty()
               ? QStringLiteral("Type part of a food's name: \"apple\", \"rice\", \"cheddar\".")
               : QStringLiteral("No food of the catalogue has this in its name.");
}

void SearchFoodScreen::viewDidLoad() {
    ViewController::viewDidLoad();
    const TabBarController* tabs = AppState::shared().tabBarController;
    DEVLOG("%lu", static_cast<unsigned long>(tabs ? tabs->selectedIndex() : 0));
    searchFoodTable_.setTableHeaderView(&searchBarOut_);
    hits_.clear();
    catalogue_ = FoodSearch::of(AppState::shared().foodNames);
    searchFoodTable_.setBackgroundColor(Theme::clear());
}

int64_t SearchFoodScreen::tableViewNumberOfRowsInSection(int64_t) {
    return search ? int64_t(searchresult.size()) : 0;
}

TableViewCell* SearchFoodScreen::tableViewCellForRowAtIndexPath(IndexPath indexPath) {
    DEVLOG("%li", static_cast<long>(indexPath.row));
    TableViewCell* cell = searchFoodTable_.dequeueReusableCellWithIdentifier(kCell);
    if (!cell) cell = new TableViewCell(TableViewCell::Style::Default, kCell);
    cell->setBackgroundColor(Theme::clear());
    const std::string& text =
        search ? searchresultID.at(indexPath.row)
               : checkedAt(AppState::shared().foodNames, indexPath.row, "foodNames");
    cell->textLabel()->setText(QString::fromStdString(text));
    cell->textLabel()->setFontName("HelveticaNeue-Thin");
    cell->textLabel()->setFontSize(18);
    return cell;
}

void SearchFoodScreen::tableViewDidSelectRowAtIndexPath(IndexPath indexPath) {
    const int64_t row = indexPath.row;
    DEVLOG("%s %s", searchresultID.at(row).c_str(), searchCalorie.at(row).c_str());
    auto* food = new FoodScreen;
    food->item = searchresultID.at(row);
    food->item1 = searchCalorie.at(row);
    food->foodItemUnit = searchFoodItemUnits.at(row);
    // The row stays highlighted: nothing deselects it.
    navigationController()->pushViewController(food, true);
}

void SearchFoodScreen::searchBarTextDidBeginEditing() {
    searchBarOut_.setShowsCancelButton(true, true);
}

void SearchFoodScreen::searchBarSearchButtonClicked() {
    // The search has run on every keystroke already.
    searchBarOut_.resignFirstResponder();
}

void SearchFoodScreen::searchBarCancelButtonClicked() {
    searchBarOut_.setShowsCancelButton(false, true);
    searchBarOut_.resignFirstResponder();
    search = false;
    searchBarOut_.setText("");
    searchFoodTable_.reloadData();
}

void SearchFoodScreen::searchBarTextDidChange(const QString& searchText) {
    search = true;
    if (!catalogue_) catalogue_ = FoodSearch::of(AppState::shared().foodNames);
    // The empty text leaves the results as they are, unseen: there are no rows then.
    if (!catalogue_->run(searchText.toStdString(), hits_)) {
        search = false;
    } else if (!hits_.empty()) {
        indexOfTheObject = hits_.back();
    }
    searchFoodTable_.reloadData();
    logResults();
}

void SearchFoodScreen::logResults() const {
    if (!devlog::enabled()) return;
    DEVLOG("search result%s", devlog::describe(searchresult.texts()).c_str());
    DEVLOG("search result%s", devlog::describe(searchresultID.texts()).c_str());
}
