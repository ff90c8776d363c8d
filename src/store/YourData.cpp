#include "store/YourData.h"

#include <cctype>
#include <system_error>

#include "store/FileCommit.h"
#include "store/PlanBackup.h"
#include "store/PlanExport.h"
#include "store/PlanFinish.h"
#include "store/PlanRestore.h"
#include "store/UserDefaults.h"

namespace {

DataOutcome done(std::string text) { return {true, std::move(text)}; }

DataOutcome failure(std::string error) {
    if (!error.empty()) error[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(error[0])));
    if (!error.ends_with('.')) error += '.';
    return {false, std::move(error)};
}

std::string stamp(Instant now, const char* pattern) {
    return DateFormatter(pattern, DateLocale::posix).format(now);
}

}  // namespace

YourData::YourData(UserDefaults& defaults, std::filesystem::path folder)
    : defaults_(defaults), folder_(std::move(folder)) {}

std::string YourData::suggestedCsvName(Instant today) {
    return "calorie-counter-" + stamp(today, "yyyy-MM-dd") + ".csv";
}

std::string YourData::suggestedBackupName(Instant today) {
    return "calorie-counter-" + stamp(today, "yyyy-MM-dd") + ".db";
}

std::string YourData::firstTime() const { return defaults_.stringForKey("firstTime").value_or(""); }

void YourData::setFirstTime(const std::string& value) const {
    defaults_.setObject(value, "firstTime");
    defaults_.synchronize();
}

DataOutcome YourData::exportCsv(const std::filesystem::path& file) const {
    const ExportResult result = exportPlan(database(), file);
    if (!result.ok()) return failure(result.error);
    return done("Exported " + std::to_string(result.days) + " days to " + file.string() + ".");
}

DataOutcome YourData::backUp(const std::filesystem::path& file) const {
    const BackupResult result = backup(database(), file, firstTime());
    if (!result.ok()) return failure(result.error);
    return done("Backed up to " + file.string() + ".");
}

bool YourData::hasBackup() const { return latestBackup(folder_).has_value(); }

DataOutcome YourData::restore(const std::filesystem::path& file, Instant now) const {
    std::error_code error;
    std::filesystem::create_directories(folder_, error);
    const RestoreResult result = ::restore(file, folder_, now);
    if (!result.ok()) return failure("nothing was restored from " + file.string() + ": " + result.error);
    setFirstTime(result.firstTime);
    std::string text = "Restored the plan from " + file.string() + ".";
    if (!result.kept.empty()) text += " The file it replaced is kept as " + result.kept.string() + ".";
    return done(text);
}

DataOutcome YourData::restoreLatest(Instant now) const {
    const auto latest = latestBackup(folder_);
    if (!latest) return failure("there is no automatic backup in " + backupFolder(folder_).string());
    return restore(*latest, now);
}

DataOutcome YourData::startNewPlan(Instant now) const {
    const std::filesystem::path live = database();
    std::error_code error;
    std::string text = "A new plan starts with the set-up.";
    if (std::filesystem::exists(live, error)) {
        const std::filesystem::path folder = backupFolder(folder_);
        std::filesystem::create_directories(folder, error);
        const std::filesystem::path kept = folder / ("food-before-new-plan-" + stamp(now, "yyyy-MM-dd-HHmmss") + ".db");
        if (!renameNoReplace(live, kept)) return failure("the plan's file could not be moved to " + kept.string());
        syncFolder(folder);
        syncFolder(folder_);
        text = "The plan so far is kept as " + kept.string() + "; a new one starts with the set-up.";
    }
    // Not "no": the next start runs the set-up on a fresh copy of the catalogue.
    setFirstTime("");
    return done(text);
}

DataOutcome YourData::finishPlan(Instant now) const {
    const std::string error = ::finishPlan(database(), now);
    if (!error.empty()) return failure(error);
    return done("The plan is finished from the profile the set-up stored.");
}
