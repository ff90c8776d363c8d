#include "exercise/ExerciseScreen.h"

#include "exercise/BrowseExerciseScreen.h"
#include "store/Checked.h"
#include "store/DevLog.h"
#include "ui/Label.h"
#include "ui/NavigationController.h"
#include "ui/Theme.h"

namespace {

const QString kCell = QStringLiteral("TableViewCellId");

QString text(const std::string& s) {
    return QString::fromStdString(s);
}

}  // namespace

ExerciseScreen::ExerciseScreen(QObject* parent) : ViewController(parent) {
    setTitle("Exercise");
    plainTableView_.setDataSource(this);
    plainTableView_.setDelegate(this);
    searchBarOut_.setDelegate(this);
    connect(&searchBarOut_, &SearchBar::textChanged, this, &ExerciseScreen::emptyListHintChanged);
}

QString ExerciseScreen::emptyListHint() const {
    return searchBarOut_.text().isEmpty() ? QString()
                                          : QStringLiteral("No activity has this in its name.");
}

void ExerciseScreen::viewDidLoad() {
    ViewController::viewDidLoad();
    catalogue_.emplace();
    // The layout keeps the list clear of the bars, so there are no scroll insets to adjust.
    indexBar_.setDelegate(this);
    if (NavigationController* nav = navigationController()) nav->setTintColor(Theme::tint());
}

int64_t ExerciseScreen::numberOfSectionsInTableView() {
    loadViewIfNeeded();  // the table is part of the view: asking it loads the view
    indexBar_.setIndexes(catalogue_->sections());
    return search ? 1 : int64_t(catalogue_->sections().size());
}

int64_t ExerciseScreen::tableViewNumberOfRowsInSection(int64_t section) {
    if (search) return int64_t(results_.searchresultID.size());
    return int64_t(checkedAt(catalogue_->rows(), section, "rows").size());
}

std::pair<const std::string&, const std::string&> ExerciseScreen::activityAt(IndexPath at) const {
    if (search)
        return {checkedAt(results_.searchresultID, at.row, "searchresultID"),
                checkedAt(results_.searchCalorie, at.row, "searchCalorie")};
    return {checkedAt(checkedAt(catalogue_->rows(), at.section, "rows"), at.row, "rows"),
            checkedAt(checkedAt(catalogue_->rows1(), at.section, "rows1"), at.row, "rows1")};
}

TableViewCell* ExerciseScreen::tableViewCellForRowAtIndexPath(IndexPath indexPath) {
    TableViewCell* cell = plainTableView_.dequeueReusableCellWithIdentifier(kCell);
    if (!cell) cell = new TableViewCell(TableViewCell::Style::Default, kCell);
    const std::string& name = activityAt(indexPath).first;
    if (search) DEVLOG("===========================%s", name.c_str());
    cell->textLabel()->setText(text(name));
    return cell;
}

// A clear view far wider than a phone holding a red strip with the letter; the table places the
// view at its section and cuts it to its own width.
View* ExerciseScreen::tableViewViewForHeaderInSection(int64_t section) {
    if (search) return nullptr;
    auto* header = new View;
    header->setFrame(QRectF(0, 200, 768, 244));
    auto* label = new Label;
    label->setFrame(QRectF(0, 0, 768, 20));
    label->setBackgroundColor(Theme::tint());
    label->setTextColor(Theme::onTint());
    label->setFontName("Arial-Bold");
    label->setFontSize(13);
    label->setText(text(checkedAt(catalogue_->sections(), section, "sections")));
    header->addSubview(label);
    return header;
}

void ExerciseScreen::tableViewDidSelectRowAtIndexPath(IndexPath indexPath) {
    const auto [name, perHour] = activityAt(indexPath);
    DEVLOG("%s %s", name.c_str(), perHour.c_str());
    plainTableView_.deselectRowAtIndexPath(indexPath, true);
    auto* duration = new BrowseExerciseScreen;
    duration->setItem(text(name));
    duration->setItem1(text(perHour));
    navigationController()->pushViewController(duration, true);
}

void ExerciseScreen::tableViewIndexBar(SectionIndexBar*, int64_t section) {
    if (section < 0 || section >= plainTableView_.numberOfSections()) return;
    plainTableView_.scrollToRowAtIndexPath({section, 0}, TableView::ScrollPosition::Top, true);
}

void ExerciseScreen::searchBarTextDidBeginEditing() {
    searchBarOut_.setShowsCancelButton(true, true);
}

void ExerciseScreen::searchBarSearchButtonClicked() {
    // Every keystroke has searched already: only the keyboard goes.
    searchBarOut_.resignFirstResponder();
}

void ExerciseScreen::searchBarCancelButtonClicked() {
    indexBar_.setHidden(false);
    searchBarOut_.setShowsCancelButton(false, true);
    searchBarOut_.resignFirstResponder();
    search = false;
    searchBarOut_.setText("");
    plainTableView_.reloadData();
}

// The whole catalogue is searched afresh on every change; the empty text goes back to browsing
// and leaves the last results as they are, unseen.
void ExerciseScreen::searchBarTextDidChange(const QString& searchText) {
    loadViewIfNeeded();
    search = !searchText.isEmpty();
    indexBar_.setHidden(search);
    if (search) catalogue_->search(searchText.toStdString(), results_);
    plainTableView_.reloadData();
    logResults();
}

void ExerciseScreen::logResults() const {
    if (!devlog::enabled()) return;
    DEVLOG("search result%s", devlog::describe(results_.searchresult).c_str());
    DEVLOG("search result%s", devlog::describe(results_.searchresultID).c_str());
}
