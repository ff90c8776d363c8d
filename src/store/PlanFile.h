#pragma once
// A plan file opened with SQLite for the checks, the export and the copies: connections and
// statements always closed, and a failure named the way PlanCheck names it.

#include <sqlite3.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "store/PlanCheck.h"

class SqliteFile {
public:
    // flags as for sqlite3_open_v2; a lock held by another connection is waited for lockWait.
    SqliteFile(const std::filesystem::path& path, int flags, std::chrono::milliseconds lockWait);
    ~SqliteFile();
    SqliteFile(const SqliteFile&) = delete;
    SqliteFile& operator=(const SqliteFile&) = delete;

    sqlite3* get() const { return db_; }
    const std::filesystem::path& path() const { return path_; }
    // The result of the open, or of the last call that failed since.
    int result() const { return result_; }
    bool ok() const { return result_ == SQLITE_OK; }
    std::string message() const;

    // Statements that return no rows; false with result() set when one fails.
    bool exec(const char* sql);
    // Whether a call's result is a success; a failure is recorded as result().
    bool succeeded(int result);

    // The fault a failed call stands for: locked, damaged or unreadable.
    PlanCheck fault() const;

private:
    std::filesystem::path path_;
    sqlite3* db_ = nullptr;
    int result_;
};

class SqliteQuery {
public:
    SqliteQuery(SqliteFile& db, const char* sql);
    ~SqliteQuery() { sqlite3_finalize(stmt_); }
    SqliteQuery(const SqliteQuery&) = delete;
    SqliteQuery& operator=(const SqliteQuery&) = delete;

    bool ok() const { return stmt_ != nullptr; }
    // True on a row; at the end or on failure false, and a failure is recorded in the file.
    bool next();
    void bind(int index, std::string_view text);
    std::string_view text(int column) const;
    int64_t integer(int column) const { return sqlite3_column_int64(stmt_, column); }

private:
    SqliteFile& db_;
    sqlite3_stmt* stmt_ = nullptr;
};

// Opens an existing plan file and reads its header, so that a file that is no database, is cut
// short or is held by another program is named here. Empty, with fault set, when that fails.
// A write cut short is undone by reopening read-write, as any connection of the store would.
std::unique_ptr<SqliteFile> openPlanFile(const std::filesystem::path& path,
                                         std::chrono::milliseconds lockWait, PlanCheck& fault);

// Whether table holds, from its first column on, the columns the program reads by position;
// fault names the first one that is not in its place.
bool hasPlanColumns(SqliteFile& db, const char* table, PlanCheck& fault);

// Copies from into memory with SQLite's online backup, in one step so that the copy is one
// consistent state, also while the app writes. Another connection's lock is waited out until
// lockWait has passed. A failure is recorded in the copy returned.
std::unique_ptr<SqliteFile> copyToMemory(SqliteFile& from, std::chrono::milliseconds lockWait);

// The bytes of an in-memory database as a file, always in rollback-journal mode: the program's
// files never use WAL. Empty when SQLite could not allocate them.
struct FileImage {
    std::unique_ptr<unsigned char, decltype(&sqlite3_free)> bytes{nullptr, sqlite3_free};
    size_t size = 0;

    std::string_view view() const { return {reinterpret_cast<const char*>(bytes.get()), size}; }
};
FileImage fileImage(SqliteFile& memory);
