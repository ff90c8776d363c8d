#include "store/PlanBackup.h"

#include <algorithm>
#include <cctype>
#include <chrono>
#include <vector>

#include "store/FileCommit.h"
#include "store/PlanFile.h"

namespace {

constexpr size_t kKeptDaily = 7;
// A partial copy this old belongs to a backup that was cut short, not to one under way.
constexpr auto kStalePartial = std::chrono::hours(1);

std::string copyError(const SqliteFile& copy, const std::filesystem::path& from) {
    PlanCheck fault = copy.fault();
    fault.path = from;
    if (copy.result() == SQLITE_NOMEM || copy.ok())
        return "there is not enough memory for the copy";
    return fault.text();
}

bool storeFirstTime(SqliteFile& copy, const std::string& firstTime) {
    // A copy of a copy brings the old table along; it holds this copy's value only.
    if (!copy.exec("DROP TABLE IF EXISTS userDefaults;"
                   "CREATE TABLE userDefaults (key TEXT PRIMARY KEY, value TEXT)"))
        return false;
    SqliteQuery insert(copy, "INSERT INTO userDefaults VALUES ('firstTime', ?1)");
    insert.bind(1, firstTime);
    insert.next();
    return copy.ok();
}

// The copy is made and checked in memory, then written with one call: SQLite writing it page by
// page took longer than the rest of the backup together.
// verify: the copy's pages are checked first. The automatic backups are, so that a damaged plan
// never pushes the last good ones out; a backup a person asks for copies whatever can be read,
// as fast as a plain copy allows (the check alone took as long as the rest).
BackupResult copyPlan(const std::filesystem::path& from, const std::filesystem::path& to,
                      const std::string& firstTime, bool replace, bool verify) {
    PlanCheck fault;
    const auto source = openPlanFile(from, kPlanLockWait, fault);
    if (!source) return {.error = fault.text()};
    const auto copy = copyToMemory(*source, kPlanLockWait);
    if (!copy->ok() || !storeFirstTime(*copy, firstTime)) return {.error = copyError(*copy, from)};
    if (verify) {
        SqliteQuery check(*copy, "PRAGMA quick_check(1)");
        if (check.next() && check.text(0) != "ok")
            return {.error = "the copy is damaged: " + std::string(check.text(0))};
    }
    const FileImage image = fileImage(*copy);
    if (!copy->ok() || !image.bytes) return {.error = copyError(*copy, from)};
    PendingFile file(to);
    if (!file.write(image.view()) || !file.commit(replace)) return {.error = file.error()};
    return {.file = to};
}

// food-yyyy-MM-dd.db, the only names the automatic backups take and prune.
bool isAutomatic(const std::string& name) {
    constexpr std::string_view pattern = "food-####-##-##.db";
    if (name.size() != pattern.size()) return false;
    for (size_t i = 0; i < name.size(); ++i) {
        const bool digit = std::isdigit(static_cast<unsigned char>(name[i])) != 0;
        if (pattern[i] == '#' ? !digit : name[i] != pattern[i]) return false;
    }
    return true;
}

// Oldest first: the dates in the names sort as the days do.
std::vector<std::filesystem::path> automaticBackups(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> found;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(folder, error))
        if (isAutomatic(entry.path().filename().string())) found.push_back(entry.path());
    std::sort(found.begin(), found.end());
    return found;
}

void prune(const std::filesystem::path& folder) {
    std::error_code error;
    const auto kept = automaticBackups(folder);
    for (size_t i = 0; i + kKeptDaily < kept.size(); ++i) std::filesystem::remove(kept[i], error);
    const auto now = std::filesystem::file_time_type::clock::now();
    for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
        const auto written = entry.last_write_time(error);
        if (!error && entry.path().filename().string().find(".partial-") != std::string::npos &&
            now - written > kStalePartial)
            std::filesystem::remove(entry.path(), error);
    }
    syncFolder(folder);
}

}  // namespace

BackupResult backup(const std::filesystem::path& fromDb, const std::filesystem::path& toFile,
                    const std::string& firstTime) {
    return copyPlan(fromDb, toFile, firstTime, true, false);
}

std::filesystem::path backupFolder(const std::filesystem::path& dataFolder) {
    return dataFolder / "backups";
}

BackupResult backupDaily(const std::filesystem::path& dataFolder,
                         const std::filesystem::path& fromDb, const std::string& firstTime,
                         Instant today) {
    const std::filesystem::path folder = backupFolder(dataFolder);
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error) return {.error = fileErrorText(error.value(), folder)};
    const std::string day = DateFormatter("yyyy-MM-dd", DateLocale::posix).format(today);
    const std::filesystem::path target = folder / ("food-" + day + ".db");
    BackupResult result;
    if (!std::filesystem::exists(target, error)) {
        result = copyPlan(fromDb, target, firstTime, false, true);
        // Another thread made today's backup first: there is still one for today.
        if (!result.ok() && std::filesystem::exists(target, error)) result = {};
    }
    prune(folder);
    return result;
}

std::optional<std::filesystem::path> latestBackup(const std::filesystem::path& dataFolder) {
    const auto found = automaticBackups(backupFolder(dataFolder));
    if (found.empty()) return std::nullopt;
    return found.back();
}
