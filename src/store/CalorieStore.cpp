#include "store/CalorieStore.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <array>
#include <system_error>

#include "store/AppState.h"
#include "store/DevLog.h"
#include "store/FileCommit.h"
#include "store/Formatted.h"

namespace {

// How long a statement waits for another connection's lock before it gives up.
constexpr int kBusyTimeoutMs = 5000;

// A connection that is always closed, also after a failed open. The statements rely on a
// double-quoted word that names no column being read as a string: switch that on explicitly,
// since SQLite can be built without it.
class Connection {
public:
    explicit Connection(const std::string& path) : result_(sqlite3_open(path.c_str(), &db_)) {
        if (!ok()) return;
        sqlite3_db_config(db_, SQLITE_DBCONFIG_DQS_DML, 1, nullptr);
        // A lock held by another connection (a backup tool, a second reader) is waited out
        // rather than dropping the write.
        sqlite3_busy_timeout(db_, kBusyTimeoutMs);
    }
    ~Connection() { sqlite3_close(db_); }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    bool ok() const { return result_ == SQLITE_OK; }
    int result() const { return result_; }
    sqlite3* get() const { return db_; }

private:
    sqlite3* db_ = nullptr;
    int result_;
};

// Prepares sql, logging the error message when that fails; the statement is finalized on scope
// exit either way.
class Statement {
public:
    Statement(const Connection& db, const char* sql)
        : result_(sqlite3_prepare_v2(db.get(), sql, -1, &stmt_, nullptr)) {
        if (result_ != SQLITE_OK) DEVLOG("%s", sqlite3_errmsg(db.get()));
    }
    ~Statement() { sqlite3_finalize(stmt_); }
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    bool ok() const { return stmt_ != nullptr; }
    // The prepare's result while ok() is false.
    int result() const { return result_; }
    int step() { return sqlite3_step(stmt_); }
    std::string text(int column) const {
        const auto* bytes = sqlite3_column_text(stmt_, column);
        return bytes ? reinterpret_cast<const char*>(bytes) : std::string();
    }

private:
    sqlite3_stmt* stmt_ = nullptr;
    int result_;
};

// Copies from to to (replacing a leftover), writable by its owner, and flushed to disk.
bool copyWhole(const std::filesystem::path& from, const std::filesystem::path& to) {
    std::error_code error;
    if (!std::filesystem::copy_file(from, to, std::filesystem::copy_options::overwrite_existing,
                                    error))
        return false;
    // The shipped copy may be installed read-only; the working copy must take writes.
    std::filesystem::permissions(to, std::filesystem::perms::owner_write,
                                 std::filesystem::perm_options::add, error);
    const int fd = ::open(to.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) return false;
    const bool synced = ::fsync(fd) == 0;
    ::close(fd);
    return synced && !error;
}

}  // namespace

void CalorieStore::checkAndCreateDatabase(const std::filesystem::path& shippedFolder) {
    std::error_code error;
    if (std::filesystem::exists(state_.databasePath, error)) return;
    // The copy goes to a name of its own and is renamed into place only once it is whole and on
    // disk: a start killed or starved of space halfway leaves no partial food.db, which would
    // never be replaced. The next start overwrites whatever the broken copy left.
    const std::filesystem::path target = state_.databasePath;
    std::filesystem::path partial = target;
    partial += ".copying";
    if (copyWhole(shippedFolder / state_.databaseName, partial) &&
        renameNoReplace(partial, target)) {
        syncFolder(target.parent_path());
        return;
    }
    std::filesystem::remove(partial, error);
}

void CalorieStore::UpdateDatabase(const std::string& key, const std::string& value) {
    DEVLOG("%s %s", key.c_str(), value.c_str());
    const std::string sql = formatted("UPDATE profileData SET \"%s\"=\"%s\" WHERE id=2;",
                                      key.c_str(), value.c_str());
    DEVLOG("%s", sql.c_str());
    write(sql, "Succesfully Inserted ");
}

void CalorieStore::insertDatabase(const std::string& date, int32_t id) {
    DEVLOG("%s %i", date.c_str(), id);
    write(formatted("INSERT INTO  dailyData (date,id,calorieConsumed,calorieBurned) "
                    "VALUES (\"%s\",\"%i\",0,0)",
                    date.c_str(), id),
          "Saved");
}

void CalorieStore::UpdateDatabase1(const std::string& key, const std::string& value, int32_t id) {
    if (beforeDailyUpdate_) beforeDailyUpdate_();
    DEVLOG("%s %s", key.c_str(), value.c_str());
    const std::string sql = formatted("UPDATE dailyData SET \"%s\"=\"%s\" WHERE id=\"%i\";",
                                      key.c_str(), value.c_str(), id);
    DEVLOG("%s", sql.c_str());
    write(sql, "Succesfully Updated ");
}

void CalorieStore::write(const std::string& sql, const char* doneText) {
    const Connection db(state_.databasePath);
    // Told while the connection is open: it keeps the system error behind a failure.
    const auto failed = [&](int result) {
        if (writeFailed_) writeFailed_(writeFailureFor(result, sqlite3_system_errno(db.get())));
    };
    if (!db.ok()) return failed(db.result());
    state_.lastSql = sql;
    Statement statement(db, sql.c_str());
    if (!statement.ok()) return failed(statement.result());
    const int result = statement.step();
    if (result == SQLITE_DONE) {
        DEVLOG("%s", doneText);
    } else {
        failed(result);
    }
}

void CalorieStore::read(const char* sql, const std::function<void(const std::string*)>& onRow,
                        int columnCount) {
    const Connection db(state_.databasePath);
    if (!db.ok()) return;
    state_.lastSql = sql;
    Statement statement(db, sql);
    if (!statement.ok()) return;
    // This step fetches the first row, which is thereby passed over: the first row of every
    // table is a placeholder, and the live profile row is the second one.
    const int first = statement.step();
    DEVLOG(" %d, %d ", first, SQLITE_ROW);
    std::array<std::string, 4> columns;
    while (statement.step() == SQLITE_ROW) {
        for (int c = 0; c < columnCount; ++c) columns[c] = statement.text(c);
        onRow(columns.data());
    }
}

void CalorieStore::readDataFromDatabase() {
    state_.profileRows.clear();
    read(
        "select * from profileData",
        [this](const std::string* c) {
            state_.profileRows.push_back({c[1], c[2]});
            DEVLOG("%s", devlog::describe(state_.profileRows.back()).c_str());
        },
        3);
    DEVLOG("%s", devlog::describe(state_.profileRows).c_str());
}

void CalorieStore::readDataFromDatabaseFoodTable() {
    // Only the names are emptied: a second read appends a second copy of calories and units.
    state_.foodNames.clear();
    read(
        "select * from food",
        [this](const std::string* c) {
            DEVLOG("%s", devlog::describe(std::array{c[1], c[3]}).c_str());
            state_.foodNames.push_back(c[3]);
            state_.foodCalories.push_back(c[1]);
            state_.foodUnits.push_back(c[2]);
        },
        4);
    DEVLOG("%s", devlog::describe(state_.foodNames).c_str());
    DEVLOG("%s", devlog::describe(state_.foodCalories).c_str());
}

void CalorieStore::readDataFromDatabaseMainTable() {
    state_.dailyRows.clear();
    read(
        "select * from dailyData",
        [this](const std::string* c) {
            state_.dailyRows.push_back({c[0], c[1], c[2], c[3]});
            DEVLOG("%s", devlog::describe(state_.dailyRows.back()).c_str());
        },
        4);
    DEVLOG("%s", devlog::describe(state_.dailyRows).c_str());
}
