#include "store/PlanRestore.h"

#include <array>
#include <optional>
#include <system_error>

#include "store/FileCommit.h"
#include "store/Formatted.h"
#include "store/PlanBackup.h"
#include "store/PlanFile.h"

namespace {

constexpr const char* kDatabaseName = "food.db";
// SQLite's files beside a database: they belong to it, and would be played into another file
// renamed to its name.
constexpr std::array<const char*, 3> kSideFiles = {"-journal", "-wal", "-shm"};

std::filesystem::path withSuffix(std::filesystem::path path, const char* suffix) {
    path += suffix;
    return path;
}

bool fail(RestoreResult& result, std::string error) {
    result.error = std::move(error);
    return false;
}

std::optional<std::string> storedFirstTime(SqliteFile& copy) {
    {
        SqliteQuery table(copy,
                          "SELECT 1 FROM sqlite_schema WHERE type = 'table' AND "
                          "name = 'userDefaults'");
        if (!table.next()) return std::nullopt;
    }
    SqliteQuery value(copy, "SELECT value FROM userDefaults WHERE key = 'firstTime'");
    if (!value.next()) return std::nullopt;
    return std::string(value.text(0));
}

// The candidate's plan without its user defaults, as the bytes of a file; the value they held
// goes into the result.
bool copyCandidate(const std::filesystem::path& candidate, FileImage& image,
                   RestoreResult& result) {
    PlanCheck fault;
    const auto source = openPlanFile(candidate, kPlanLockWait, fault);
    if (!source) return fail(result, fault.text());
    const auto copy = copyToMemory(*source, kPlanLockWait);
    if (copy->ok()) {
        result.firstTime = storedFirstTime(*copy).value_or("no");
        copy->exec("DROP TABLE IF EXISTS userDefaults");
        image = fileImage(*copy);
    }
    if (copy->ok() && image.bytes) return true;
    fault = copy->fault();
    fault.path = candidate;
    return fail(result, copy->ok() ? "there is not enough memory for the copy" : fault.text());
}

bool keepCurrent(const std::filesystem::path& live, const std::filesystem::path& dataFolder,
                 Instant now, RestoreResult& result) {
    // A write cut short is undone first, as the store's next open would undo it: the copy kept is
    // the plan as last stored, and no journal is left to be played into the restored file.
    {
        SqliteFile current(live, SQLITE_OPEN_READWRITE, kPlanLockWait);
        current.exec("PRAGMA schema_version");
    }
    const std::string why = "the current plan could not be kept: ";
    const std::filesystem::path folder = backupFolder(dataFolder);
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error) return fail(result, why + fileErrorText(error.value(), folder));
    const std::string stamp = "food-before-restore-" +
                              DateFormatter("yyyy-MM-dd'T'HHmmss", DateLocale::posix).format(now);
    for (int n = 1; n <= 100; ++n) {
        const std::filesystem::path target =
            folder / (n > 1 ? formatted("%s-%d.db", stamp.c_str(), n) : stamp + ".db");
        if (std::filesystem::exists(target, error)) continue;
        PendingFile kept(target);
        if (!kept.ok()) return fail(result, why + kept.error());
        std::filesystem::copy_file(live, kept.path(),
                                   std::filesystem::copy_options::overwrite_existing, error);
        if (error) return fail(result, why + fileErrorText(error.value(), target));
        if (!kept.commit(false)) {
            if (std::filesystem::exists(target, error)) continue;  // taken meanwhile
            return fail(result, why + kept.error());
        }
        result.kept = target;
        // What undoing could not undo (a damaged file's journal) goes with the file it belongs to.
        for (const char* suffix : kSideFiles) {
            if (std::filesystem::exists(withSuffix(live, suffix), error))
                std::filesystem::rename(withSuffix(live, suffix), withSuffix(target, suffix),
                                        error);
        }
        return true;
    }
    return fail(result, why + "every name for it is taken");
}

}  // namespace

RestoreResult restore(const std::filesystem::path& candidate,
                      const std::filesystem::path& dataFolder, Instant now) {
    RestoreResult result{.check = checkPlan(candidate)};
    if (!result.check.ok()) {
        result.error = result.check.text();
        return result;
    }
    std::error_code error;
    std::filesystem::create_directories(dataFolder, error);
    if (error) {
        result.error = fileErrorText(error.value(), dataFolder);
        return result;
    }
    const std::filesystem::path live = dataFolder / kDatabaseName;
    FileImage image;
    if (!copyCandidate(candidate, image, result)) return result;
    PendingFile file(live);
    if (!file.write(image.view())) {
        result.error = file.error();
        return result;
    }
    if (std::filesystem::exists(live, error) && !keepCurrent(live, dataFolder, now, result))
        return result;
    if (!file.commit()) result.error = file.error();
    return result;
}
