// The store's statements, whose values are formatted into the SQL text, against the same
// statements with the value bound as a parameter, run on twin tables in the same file. Input:
// one byte for the operation and key, four for the day id, the rest is the value.
#include <sqlite3.h>
#include <strings.h>
#include <unistd.h>

#include <cstdint>
#include <cstring>
#include <filesystem>
#include <string>

#include "fuzz/Expect.h"
#include "store/AppState.h"
#include "store/CalorieStore.h"

namespace {

// The store's tables, and the oracle's twins of them.
constexpr char kTables[] = R"(
    CREATE TABLE profileData (id INTEGER, calorieBudget TEXT, startingDate TEXT);
    INSERT INTO profileData VALUES (1, '0', ''), (2, '1850', '2026-11-15 09:30:00 +0000');
    CREATE TABLE dailyData (id INTEGER, date TEXT, calorieConsumed INTEGER, calorieBurned INTEGER);
    INSERT INTO dailyData VALUES (-1, '', 0, 0), (0, 'Sunday November 15', 120, 0),
                                 (1, 'Monday November 16', 0, 45), (2, 'Tuesday November 17', 7, 7);
    CREATE TABLE oracleProfile AS SELECT * FROM profileData;
    CREATE TABLE oracleDaily AS SELECT * FROM dailyData;
)";

// The process's own file, memory-backed where there is one, as every statement syncs; made anew
// for each input, and removed as the process ends.
const struct File {
    const std::filesystem::path folder =
        std::filesystem::exists("/dev/shm") ? "/dev/shm" : std::filesystem::temp_directory_path();
    const std::string path =
        (folder / ("calorie-fuzz-" + std::to_string(getpid()) + ".db")).string();
    ~File() { unlink(path.c_str()); }
} kFile;

// Whether the formatted statement reads the value as text, as the bound one does. A double quote
// ends it early, and a double-quoted word naming a column (ASCII letters in any case) or the row
// id reads as that column; neither comes from the app, which writes numbers and dates.
bool readsAsText(const std::string& value) {
    for (const char* name : {"id", "calorieBudget", "startingDate", "date", "calorieConsumed",
                             "calorieBurned", "rowid", "oid", "_rowid_"})
        if (strcasecmp(value.c_str(), name) == 0) return false;
    return value.find('"') == std::string::npos;
}

// Runs each statement of sql, with ?1 bound to value and ?2 to id where it has them; returns the
// first column of the last row read.
std::string run(const std::string& sql, const std::string& value = {}, int32_t id = 0) {
    sqlite3* db = nullptr;
    expect(sqlite3_open(kFile.path.c_str(), &db) == SQLITE_OK, "open", kFile.path);
    std::string last;
    for (const char* next = sql.c_str(); *next;) {
        sqlite3_stmt* stmt = nullptr;
        expect(sqlite3_prepare_v2(db, next, -1, &stmt, &next) == SQLITE_OK, "prepare", sql);
        if (!stmt) continue;  // only blanks were left
        sqlite3_bind_text(stmt, 1, value.data(), static_cast<int>(value.size()), SQLITE_TRANSIENT);
        sqlite3_bind_int(stmt, 2, id);
        int status;
        while ((status = sqlite3_step(stmt)) == SQLITE_ROW)
            last = reinterpret_cast<const char*>(sqlite3_column_text(stmt, 0));
        expect(status == SQLITE_DONE, "step", sql);
        sqlite3_finalize(stmt);
    }
    sqlite3_close(db);
    return last;
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

    unlink(kFile.path.c_str());
    run(kTables);
    AppState state;
    state.databasePath = kFile.path;
    CalorieStore store(state);
    const std::string key = op == 0 ? (secondKey ? "startingDate" : "calorieBudget")
                                    : (secondKey ? "calorieBurned" : "calorieConsumed");
    if (op == 0) {
        store.UpdateDatabase(key, raw);
        run("UPDATE oracleProfile SET \"" + key + "\"=?1 WHERE id=2;", value, id);
    } else if (op == 1) {
        store.insertDatabase(raw, id);
        run("INSERT INTO  oracleDaily (date,id,calorieConsumed,calorieBurned) VALUES (?1,?2,0,0)",
            value, id);
    } else {
        store.UpdateDatabase1(key, raw, id);
        run("UPDATE oracleDaily SET \"" + key + "\"=?1 WHERE id=?2;", value, id);
    }
    if (!readsAsText(value)) return 0;
    // A compound select compares values with their storage classes (it applies no affinity), and
    // the rowid pairs the rows up.
    for (const auto& [a, b] : {std::pair{"profileData", "oracleProfile"},
                               {"oracleProfile", "profileData"},
                               {"dailyData", "oracleDaily"},
                               {"oracleDaily", "dailyData"}}) {
        const std::string rows =
            std::string("SELECT rowid, * FROM ") + a + " EXCEPT SELECT rowid, * FROM " + b;
        expect(run("SELECT count(*) FROM (" + rows + ")") == "0", "tables differ after the value",
               value + "\n" + a + " has rows that " + b + " lacks");
    }
    return 0;
}
