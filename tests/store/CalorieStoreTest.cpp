#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/resource.h>

#include <csignal>
#include <filesystem>
#include <thread>

#include "FileFaults.h"
#include "store/AppState.h"
#include "store/CalorieStore.h"
#include "support/Fixtures.h"

namespace {

using Column = std::vector<std::string>;

// A small food.db laid out as the shipped one: each table's first row is a placeholder.
constexpr const char* kSchema = R"(
    CREATE TABLE profileData (id INTEGER, calorieBudget TEXT, startingDate TEXT);
    INSERT INTO profileData VALUES (1, '0', ''), (2, '1850', '2026-11-15 09:30:00 +0000');
    CREATE TABLE food (id INTEGER PRIMARY KEY, calories INTEGER, unit TEXT, name TEXT);
    INSERT INTO food VALUES (0, 0, '', ''), (1, 160, '1 cup (160 g)', 'Apples'),
                            (2, 72, '1 large (50 g)', 'Egg');
    CREATE TABLE dailyData (id INTEGER, date TEXT, calorieConsumed INTEGER, calorieBurned INTEGER);
    INSERT INTO dailyData VALUES (-1, '', 0, 0);
)";

class CalorieStoreTest : public testing::Test {
protected:
    CalorieStoreTest() {
        state.databaseName = "food.db";
        state.databasePath = dir.file("food.db");
    }
    void makeDatabase(const char* extraSql = "") {
        execSql(state.databasePath, kSchema);
        execSql(state.databasePath, extraSql);
    }
    Column column(const char* sql) { return queryColumn(state.databasePath, sql); }

    TempDir dir;
    AppState state;
    CalorieStore store{state};
};

TEST_F(CalorieStoreTest, ReadsSkipTheFirstRowOfEveryTableAndASecondFoodReadAppends) {
    makeDatabase("INSERT INTO dailyData VALUES (0, 'Sunday November 15', 0, 0), "
                 "(1, 'Monday November 16', 250, 40);");
    LogCapture log;
    store.readDataFromDatabase();
    store.readDataFromDatabaseMainTable();
    store.readDataFromDatabaseFoodTable();
    store.readDataFromDatabaseFoodTable();  // only the names are emptied first

    EXPECT_EQ(state.profileRows, (std::vector<ProfileRow>{{"1850", "2026-11-15 09:30:00 +0000"}}));
    EXPECT_EQ(state.foodNames, (Column{"Apples", "Egg"}));
    EXPECT_EQ(state.foodCalories, (Column{"160", "72", "160", "72"}));
    EXPECT_EQ(state.foodUnits,
              (Column{"1 cup (160 g)", "1 large (50 g)", "1 cup (160 g)", "1 large (50 g)"}));
    // Position k of dailyRows is the day with id k because the placeholder row is passed over.
    EXPECT_EQ(state.dailyRows, (std::vector<DayRow>{{"0", "Sunday November 15", "0", "0"},
                                                    {"1", "Monday November 16", "250", "40"}}));
    EXPECT_EQ(log.count(" 100, 100 "), 4u);
    EXPECT_TRUE(log.contains("(Apples, Egg)"));
    EXPECT_EQ(state.lastSql, "select * from food");
}

// Reads of nothing leave the lists empty; a failed prepare is logged; a failed open runs no
// statement and logs nothing of SQLite.
TEST_F(CalorieStoreTest, ReadsOfNothingAndFailedOpensLeaveEmptyListsAndAreOnlyLogged) {
    const std::string update = "UPDATE profileData SET \"calorieBudget\"=\"1\" WHERE id=2;";
    const struct {
        const char* sql;  // null: the folder is not there
        Column logged;
    } cases[] = {
        // The only profile row is the skipped one (SQLITE_ROW); the day table has none (DONE).
        {"CREATE TABLE profileData (id INTEGER, calorieBudget TEXT, startingDate TEXT);"
         "INSERT INTO profileData VALUES (2, '1850', 'x');"
         "CREATE TABLE dailyData (id INTEGER, date TEXT, calorieConsumed, calorieBurned);",
         {" 100, 100 ", "()", " 101, 100 ", "()", "calorieBudget 1", update,
          "Succesfully Inserted "}},
        {"", {"no such table: profileData", "()", "no such table: dailyData", "()",
              "calorieBudget 1", update, "no such table: profileData"}},
        {nullptr, {"()", "()", "calorieBudget 1", update}},
    };
    for (const auto& c : cases) {
        TempDir folder;
        state = AppState{};
        state.databasePath = folder.file(c.sql ? "food.db" : "no-such-folder/food.db");
        if (c.sql) execSql(state.databasePath, c.sql);
        LogCapture log;
        store.readDataFromDatabase();
        store.readDataFromDatabaseMainTable();
        store.UpdateDatabase("calorieBudget", "1");
        EXPECT_TRUE(state.profileRows.empty() && state.dailyRows.empty());
        EXPECT_EQ(log.lines(), c.logged);
        EXPECT_EQ(state.lastSql, c.sql ? update : std::string());
    }
}

TEST_F(CalorieStoreTest, WritesUseTheQuotedStatementsAndTheirLogTexts) {
    makeDatabase();
    LogCapture log;
    store.insertDatabase("Sunday November 15", 0);
    store.insertDatabase("Monday November 16", 1);
    EXPECT_EQ(state.lastSql,
              "INSERT INTO  dailyData (date,id,calorieConsumed,calorieBurned) "
              "VALUES (\"Monday November 16\",\"1\",0,0)");
    EXPECT_EQ(log.count("Saved"), 2u);

    int overlayShown = 0;
    store.setBeforeDailyUpdate([&] {
        ++overlayShown;
        EXPECT_TRUE(log.lines().back() == "Saved");  // shown before anything else is logged
    });
    store.UpdateDatabase1("calorieConsumed", "250", 1);
    EXPECT_EQ(overlayShown, 1);
    EXPECT_TRUE(log.contains("UPDATE dailyData SET \"calorieConsumed\"=\"250\" WHERE id=\"1\";"));
    EXPECT_TRUE(log.contains("Succesfully Updated "));
    store.UpdateDatabase("calorieBudget", "2400");
    EXPECT_TRUE(log.contains("UPDATE profileData SET \"calorieBudget\"=\"2400\" WHERE id=2;"));

    // The quoted numbers are stored as integers, as the shipped file's columns take them.
    EXPECT_EQ(column("SELECT typeof(id) || ':' || id || ':' || calorieConsumed || ':' || "
                     "typeof(calorieConsumed) FROM dailyData WHERE id >= 0"),
              (Column{"integer:0:0:integer", "integer:1:250:integer"}));
    EXPECT_EQ(column("SELECT calorieBudget FROM profileData"), (Column{"0", "2400"}));
}

// A first start that runs out of room (the write fails) or is killed (the signal's default
// action) halfway through the copy: the file-size limit does either, at the same byte.
TEST_F(CalorieStoreTest, ACopyCutShortLeavesNoFileAndTheNextStartCopiesItWholeOnce) {
    const std::filesystem::path shipped = std::filesystem::path(FOOD_DB_PATH).parent_path();
    ASSERT_GT(std::filesystem::file_size(FOOD_DB_PATH), 256u * 1024);
    for (const bool killed : {false, true}) {
        const int status = inChild([&] {
            std::signal(SIGXFSZ, killed ? SIG_DFL : SIG_IGN);
            const rlimit small{256 * 1024, 256 * 1024};
            setrlimit(RLIMIT_FSIZE, &small);
            store.checkAndCreateDatabase(shipped);
            return 0;
        });
        EXPECT_EQ(status, killed ? 128 + SIGXFSZ : 0);
        EXPECT_FALSE(std::filesystem::exists(state.databasePath)) << killed;
    }
    store.checkAndCreateDatabase(shipped);
    EXPECT_EQ(bytesOf(state.databasePath), bytesOf(FOOD_DB_PATH));
    EXPECT_EQ(snapshot(dir.path()).size(), 1u);

    store.UpdateDatabase("calorieBudget", "1850");  // the working copy takes writes
    store.checkAndCreateDatabase(shipped);          // and is never replaced
    EXPECT_EQ(column("SELECT calorieBudget FROM profileData WHERE id = 2"), Column{"1850"});
}

// Another connection (a backup tool, a second reader) holds the file for a second: the store's
// connections wait for it instead of dropping the write.
TEST_F(CalorieStoreTest, AWriteWaitsOutAnotherConnectionsLock) {
    makeDatabase("INSERT INTO dailyData VALUES (0, 'Sunday November 15', 10, 0);");
    sqlite3* other = nullptr;
    ASSERT_EQ(sqlite3_open(state.databasePath.c_str(), &other), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(other, "BEGIN EXCLUSIVE;", nullptr, nullptr, nullptr), SQLITE_OK);
    std::thread release([other] {
        std::this_thread::sleep_for(std::chrono::seconds(1));
        sqlite3_exec(other, "COMMIT;", nullptr, nullptr, nullptr);
        sqlite3_close(other);
    });
    store.UpdateDatabase1("calorieConsumed", "20", 0);
    store.readDataFromDatabaseMainTable();
    release.join();
    EXPECT_EQ(state.dailyRows, (std::vector<DayRow>{{"0", "Sunday November 15", "20", "0"}}));
}

}  // namespace
