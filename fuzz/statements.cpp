// The store's statements, whose values are formatted into the SQL text, against the same
// statements with the value bound as a parameter. Input: one byte for the operation and key,
// four for the day id, the rest is the value.
#include <sqlite3.h>
#include <stdlib.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>

#include "fuzz/Expect.h"
#include "store/AppState.h"
#include "store/CalorieStore.h"

namespace {

constexpr char kTables[] = R"(
    DROP TABLE IF EXISTS profileData; DROP TABLE IF EXISTS dailyData;
    CREATE TABLE profileData (id INTEGER, calorieBudget TEXT, startingDate TEXT);
    INSERT INTO profileData VALUES (1, '0', ''), (2, '1850', '2026-11-15 09:30:00 +0000');
    CREATE TABLE dailyData (id INTEGER, date TEXT, calorieConsumed INTEGER, calorieBurned INTEGER);
    INSERT INTO dailyData VALUES (-1, '', 0, 0), (0, 'Sunday November 15', 120, 0),
                                 (1, 'Monday November 16', 0, 45), (2, 'Tuesday November 17', 7, 7);
)";

// The names a double-quoted word is read as before it is read as a string: the table's columns
// (ASCII letters in any case) and the row id's aliases.
bool namesAColumn(const std::string& word, std::initializer_list<std::string> columns) {
    const auto lower = [](std::string text) {
        for (char& c : text)
            if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
        return text;
    };
    const std::string name = lower(word);
    for (const std::string& column : columns)
        if (name == lower(column)) return true;
    return name == "rowid" || name == "oid" || name == "_rowid_";
}

struct Files {
    std::string store, oracle;
};

Files& files() {
    static Files f = [] {
        // Memory-backed where there is one: every statement syncs, and the files are rewritten per
        // run.
        const std::filesystem::path base = std::filesystem::exists("/dev/shm")
                                               ? "/dev/shm"
                                               : std::filesystem::temp_directory_path();
        static std::string dir = (base / "calorie-fuzz-XXXXXX").string();
        if (!mkdtemp(dir.data())) std::abort();
        std::atexit([] {
            std::error_code ignored;
            std::filesystem::remove_all(dir, ignored);
        });
        return Files{dir + "/store.db", dir + "/oracle.db"};
    }();
    return f;
}

void exec(const std::string& path, const char* sql) {
    sqlite3* db = nullptr;
    expect(sqlite3_open(path.c_str(), &db) == SQLITE_OK, "open", path);
    expect(sqlite3_exec(db, sql, nullptr, nullptr, nullptr) == SQLITE_OK, "exec", sql);
    sqlite3_close(db);
}

// Runs sql with ?1 bound to value and ?2 to id, where it has them.
void execBound(const std::string& path, const std::string& sql, const std::string& value,
               int32_t id) {
    sqlite3* db = nullptr;
    sqlite3_open(path.c_str(), &db);
    sqlite3_stmt* stmt = nullptr;
    expect(sqlite3_prepare_v2(db, sql.c_str(), -1, &stmt, nullptr) == SQLITE_OK, "prepare", sql);
    sqlite3_bind_text(stmt, 1, value.data(), static_cast<int>(value.size()), SQLITE_TRANSIENT);
    sqlite3_bind_int(stmt, 2, id);
    expect(sqlite3_step(stmt) == SQLITE_DONE, "step", sql);
    sqlite3_finalize(stmt);
    sqlite3_close(db);
}

// Every value of both tables with its storage class, in row order.
std::string dump(const std::string& path) {
    std::string out;
    sqlite3* db = nullptr;
    sqlite3_open(path.c_str(), &db);
    for (const char* sql :
         {"SELECT * FROM profileData ORDER BY rowid", "SELECT * FROM dailyData ORDER BY rowid"}) {
        sqlite3_stmt* stmt = nullptr;
        sqlite3_prepare_v2(db, sql, -1, &stmt, nullptr);
        while (sqlite3_step(stmt) == SQLITE_ROW) {
            for (int c = 0; c < sqlite3_column_count(stmt); ++c) {
                const int type = sqlite3_column_type(stmt, c);
                const auto* bytes = static_cast<const char*>(sqlite3_column_blob(stmt, c));
                out += std::to_string(type) + ":" +
                       std::string(bytes ? bytes : "",
                                   static_cast<size_t>(sqlite3_column_bytes(stmt, c))) +
                       "|";
            }
            out += "\n";
        }
        sqlite3_finalize(stmt);
    }
    sqlite3_close(db);
    return out;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 5) return 0;
    const unsigned op = data[0] % 3;
    const bool secondKey = data[0] / 3 % 2;
    int32_t id;
    std::memcpy(&id, data + 1, sizeof id);
    const std::string raw(reinterpret_cast<const char*>(data) + 5, size - 5);
    // The statement text is C text: the value ends at a NUL byte.
    const std::string value = raw.substr(0, raw.find('\0'));

    const Files& f = files();
    exec(f.store, kTables);
    exec(f.oracle, kTables);

    AppState state;
    state.databasePath = f.store;
    CalorieStore store(state);
    const std::string key = op == 0 ? (secondKey ? "startingDate" : "calorieBudget")
                                    : (secondKey ? "calorieBurned" : "calorieConsumed");
    // A word that names a column is that column's value; bracket-quote it for the oracle.
    std::string bound = "?1";
    if (op == 0) {
        store.UpdateDatabase(key, raw);
        if (namesAColumn(value, {"id", "calorieBudget", "startingDate"})) bound = "[" + value + "]";
        execBound(f.oracle, "UPDATE profileData SET \"" + key + "\"=" + bound + " WHERE id=2;",
                  value, id);
    } else if (op == 1) {
        store.insertDatabase(raw, id);
        execBound(
            f.oracle,
            "INSERT INTO  dailyData (date,id,calorieConsumed,calorieBurned) VALUES (?1,?2,0,0)",
            value, id);
    } else {
        store.UpdateDatabase1(key, raw, id);
        if (namesAColumn(value, {"id", "date", "calorieConsumed", "calorieBurned"}))
            bound = "[" + value + "]";
        execBound(f.oracle, "UPDATE dailyData SET \"" + key + "\"=" + bound + " WHERE id=?2;",
                  value, id);
    }
    // A double quote ends the value early: the statement then means something else or nothing.
    if (value.find('"') == std::string::npos)
        expect(dump(f.store) == dump(f.oracle), "tables differ after the value",
               value + "\n" + dump(f.store) + "oracle:\n" + dump(f.oracle));
    return 0;
}
