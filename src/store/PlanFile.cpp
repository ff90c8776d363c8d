#include "store/PlanFile.h"

#include <strings.h>

#include <array>
#include <string>
#include <system_error>
#include <thread>
#include <vector>

SqliteFile::SqliteFile(const std::filesystem::path& path, int flags,
                       std::chrono::milliseconds lockWait)
    : path_(path), result_(sqlite3_open_v2(path.c_str(), &db_, flags, nullptr)) {
    if (!db_) return;
    sqlite3_extended_result_codes(db_, 1);
    sqlite3_busy_timeout(db_, static_cast<int>(lockWait.count()));
}

SqliteFile::~SqliteFile() {
    sqlite3_close_v2(db_);
}

std::string SqliteFile::message() const {
    return db_ ? sqlite3_errmsg(db_) : sqlite3_errstr(result_);
}

bool SqliteFile::exec(const char* sql) {
    return succeeded(sqlite3_exec(db_, sql, nullptr, nullptr, nullptr));
}

bool SqliteFile::succeeded(int result) {
    if (result == SQLITE_OK || result == SQLITE_DONE || result == SQLITE_ROW) return true;
    result_ = result;
    return false;
}

PlanCheck SqliteFile::fault() const {
    PlanCheck check{.path = path_};
    switch (result_ & 0xff) {
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            check.fault = PlanFault::locked;
            break;
        case SQLITE_NOTADB:
        case SQLITE_CORRUPT:
            check.fault = PlanFault::damaged;
            check.detail = message();
            break;
        default:
            check.fault = PlanFault::unreadable;
            check.detail = message();
    }
    return check;
}

SqliteQuery::SqliteQuery(SqliteFile& db, const char* sql) : db_(db) {
    db.succeeded(sqlite3_prepare_v2(db.get(), sql, -1, &stmt_, nullptr));
}

bool SqliteQuery::next() {
    if (!stmt_) return false;
    const int result = sqlite3_step(stmt_);
    if (result == SQLITE_ROW) return true;
    db_.succeeded(result);
    return false;
}

void SqliteQuery::bind(int index, std::string_view text) {
    sqlite3_bind_text(stmt_, index, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

std::string_view SqliteQuery::text(int column) const {
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(stmt_, column));
    return bytes ? std::string_view(bytes, static_cast<size_t>(sqlite3_column_bytes(stmt_, column)))
                 : std::string_view();
}

std::unique_ptr<SqliteFile> openPlanFile(const std::filesystem::path& path,
                                         std::chrono::milliseconds lockWait, PlanCheck& fault) {
    fault = PlanCheck{.path = path};
    // Looked at before SQLite opens it: SQLite would take an empty file for a new database and
    // block on a pipe.
    std::error_code error;
    const auto status = std::filesystem::status(path, error);
    if (status.type() == std::filesystem::file_type::not_found) {
        fault.fault = PlanFault::missing;
    } else if (error) {
        fault.fault = PlanFault::unreadable;
        fault.detail = error.message();
    } else if (status.type() != std::filesystem::file_type::regular) {
        fault.fault = PlanFault::notAFile;
    } else if (std::filesystem::file_size(path, error) == 0 && !error) {
        fault.fault = PlanFault::empty;
    }
    if (!fault.ok()) return nullptr;

    auto db = std::make_unique<SqliteFile>(path, SQLITE_OPEN_READONLY, lockWait);
    // Reading the header is where a file that is no database, or is cut short, shows.
    if (db->ok() && !db->exec("PRAGMA schema_version") &&
        db->result() == SQLITE_READONLY_ROLLBACK) {
        db = std::make_unique<SqliteFile>(path, SQLITE_OPEN_READWRITE, lockWait);
        if (db->ok()) db->exec("PRAGMA schema_version");
    }
    if (db->ok()) return db;
    fault = db->fault();
    return nullptr;
}

bool hasPlanColumns(SqliteFile& db, const char* table, PlanCheck& fault) {
    struct Columns {
        const char* table;
        std::array<const char*, 4> names;
    };
    // The app reads every table with "select *" by position; the writes name their columns.
    static constexpr std::array<Columns, 3> kRead = {{
        {"profileData", {"id", "calorieBudget", "startingDate", nullptr}},
        {"food", {"id", "calories", "unit", "name"}},
        {"dailyData", {"id", "date", "calorieConsumed", "calorieBurned"}},
    }};
    const Columns* read = nullptr;
    for (const Columns& columns : kRead)
        if (::strcasecmp(columns.table, table) == 0) read = &columns;
    if (!read) return true;

    std::vector<std::string> found;
    SqliteQuery query(db, "SELECT name FROM pragma_table_info(?1) ORDER BY cid");
    query.bind(1, table);
    while (query.next()) found.emplace_back(query.text(0));
    if (!db.ok()) {
        fault = db.fault();
        return false;
    }
    fault = PlanCheck{.path = db.path(), .table = table};
    if (found.empty()) {
        fault.fault = PlanFault::tableMissing;
        return false;
    }
    for (size_t i = 0; i < read->names.size() && read->names[i]; ++i) {
        const char* name = read->names[i];
        if (i < found.size() && ::strcasecmp(found[i].c_str(), name) == 0) continue;
        bool elsewhere = false;
        for (const std::string& column : found)
            elsewhere = elsewhere || ::strcasecmp(column.c_str(), name) == 0;
        fault.fault = elsewhere ? PlanFault::columnMisplaced : PlanFault::columnMissing;
        fault.detail = name;
        return false;
    }
    fault = PlanCheck{.path = db.path()};
    return true;
}

std::unique_ptr<SqliteFile> copyToMemory(SqliteFile& from, std::chrono::milliseconds lockWait) {
    auto copy = std::make_unique<SqliteFile>(":memory:", SQLITE_OPEN_READWRITE, lockWait);
    if (!copy->ok()) return copy;
    sqlite3_backup* backup = sqlite3_backup_init(copy->get(), "main", from.get(), "main");
    if (!backup) {
        const int result = sqlite3_extended_errcode(copy->get());
        copy->succeeded(result == SQLITE_OK ? SQLITE_ERROR : result);
        return copy;
    }
    // The source's busy timeout covers its own lock; this covers the rest (LOCKED included).
    const auto deadline = std::chrono::steady_clock::now() + lockWait;
    int result = SQLITE_OK;
    for (;;) {
        result = sqlite3_backup_step(backup, -1);
        const int primary = result & 0xff;
        if (primary != SQLITE_BUSY && primary != SQLITE_LOCKED) break;
        if (std::chrono::steady_clock::now() >= deadline) break;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    const int finished = sqlite3_backup_finish(backup);
    copy->succeeded(result == SQLITE_DONE ? finished : result);
    return copy;
}

FileImage fileImage(SqliteFile& memory) {
    sqlite3_int64 size = 0;
    FileImage image;
    image.bytes.reset(sqlite3_serialize(memory.get(), "main", &size, 0));
    if (!image.bytes) return image;
    image.size = static_cast<size_t>(size);
    // The file format's read and write versions: 2 says WAL, as a WAL-mode original had it; 1 is
    // the rollback journal, which is all PRAGMA journal_mode=DELETE changes in a file without WAL.
    if (image.size > 19 && image.bytes.get()[18] == 2) image.bytes.get()[18] = 1;
    if (image.size > 19 && image.bytes.get()[19] == 2) image.bytes.get()[19] = 1;
    return image;
}
