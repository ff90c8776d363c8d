#include "app/tabs/YourDataSection.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <filesystem>
#include <functional>

#include "store/AppState.h"
#include "store/PlanBackup.h"
#include "store/YourData.h"
#include "ui/AlertView.h"
#include "ui/Application.h"

namespace {

std::filesystem::path localPath(const QUrl& file) {
    return QFile::encodeName(file.toLocalFile()).toStdString();
}

std::filesystem::path dataFolder() {
    return std::filesystem::path(AppState::shared().databasePath).parent_path();
}

YourData yourData() {
    return YourData(*Application::delegate()->standardUserDefaults(), dataFolder());
}

void tell(const std::string& text, const std::function<void()>& then = {}) {
    auto* alert = new AlertView("Your data", QString::fromStdString(text), "OK");
    if (then) QObject::connect(alert, &AlertView::clickedButtonAtIndex, then);
    alert->show();
}

}  // namespace

QUrl inDocuments(const std::string& name) {
    QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    // Not every home has one; a dialog opened on a missing folder shows nothing at all.
    if (!QDir(folder).exists()) folder = QDir::homePath();
    return QUrl::fromLocalFile(QDir(folder).filePath(QString::fromStdString(name)));
}

YourDataSection::YourDataSection(QObject* parent) : QObject(parent) {
    export_.setTitle("Export as CSV…");
    backup_.setTitle("Back up…");
    restore_.setTitle("Restore…");
    connect(&export_, &Button::touchUpInside, this, [this] { ask(Asked::exportCsv); });
    connect(&backup_, &Button::touchUpInside, this, [this] { ask(Asked::backup); });
    connect(&restore_, &Button::touchUpInside, this, [this] { ask(Asked::restore); });
}

void YourDataSection::ask(Asked what) {
    asked_ = what;
    emit dialogChanged();
}

QString YourDataSection::dialogTitle() const {
    switch (asked_) {
        case Asked::exportCsv: return "Export as CSV";
        case Asked::backup: return "Back up";
        case Asked::restore: return "Restore";
        case Asked::nothing: break;
    }
    return {};
}

QUrl YourDataSection::dialogFile() const {
    const Instant today = Clock::now();
    if (asked_ == Asked::exportCsv) return inDocuments(YourData::suggestedCsvName(today));
    if (asked_ == Asked::backup) return inDocuments(YourData::suggestedBackupName(today));
    return {};
}

QUrl YourDataSection::dialogFolder() const {
    // Where a restore most often comes from: the automatic backups.
    if (asked_ == Asked::restore)
        return QUrl::fromLocalFile(QString::fromStdString(backupFolder(dataFolder()).string()));
    return dialogFile().adjusted(QUrl::RemoveFilename);
}

QStringList YourDataSection::dialogFilters() const {
    if (asked_ == Asked::exportCsv) return {"CSV files (*.csv)", "All files (*)"};
    return {"Backups (*.db)", "All files (*)"};
}

void YourDataSection::dialogClosed() { ask(Asked::nothing); }

void YourDataSection::fileChosen(const QUrl& file) {
    const Asked asked = asked_;
    ask(Asked::nothing);
    if (asked == Asked::exportCsv) tell(yourData().exportCsv(localPath(file)).text);
    if (asked == Asked::backup) tell(yourData().backUp(localPath(file)).text);
    if (asked == Asked::restore) confirmRestore(file);
}

void YourDataSection::confirmRestore(const QUrl& file) {
    auto* alert = new AlertView(
        "Restore this backup?",
        "The plan on this device is replaced by the one in " + file.toLocalFile() +
            " and kept in backups/. Calorie Counter then closes; it opens the restored plan "
            "at its next start.",
        "Cancel");
    alert->addButtonWithTitle("Restore");
    connect(alert, &AlertView::clickedButtonAtIndex, this, [this, file](int index) {
        if (index == 1) restoreFrom(file);
    });
    alert->show();
}

void YourDataSection::restoreFrom(const QUrl& file) {
    const DataOutcome done = yourData().restore(localPath(file), Clock::now());
    if (!done.ok) return tell(done.text);
    // The screens hold the replaced plan: only a new start reads the restored one.
    tell(done.text + " Calorie Counter closes now.", [] { QCoreApplication::quit(); });
}
