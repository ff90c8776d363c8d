#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <thread>

#include "store/AppState.h"
#include "store/CalorieStore.h"
#include "support/Fixtures.h"

namespace {

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
    std::vector<std::string> column(const char* sql) { return queryColumn(state.databasePath, sql); }

    TempDir dir;
    AppState state;
    CalorieStore store{state};
};

TEST_F(CalorieStoreTest, ReadsSkipTheFirstRowOfEveryTable) {
    makeDatabase("INSERT INTO dailyData VALUES (0, 'Sunday November 15', 0, 0), "
                 "(1, 'Monday November 16', 250, 40);");
    LogCapture log;
    store.readDataFromDatabase();
    store.readDataFromDatabaseFoodTable();
    store.readDataFromDatabaseMainTable();

    ASSERT_EQ(state.profileRows.size(), 1u);
    EXPECT_EQ(state.profileRows[0], (ProfileRow{"1850", "2026-11-15 09:30:00 +0000"}));
    EXPECT_EQ(state.foodNames, (std::vector<std::string>{"Apples", "Egg"}));
    EXPECT_EQ(state.foodCalories, (std::vector<std::string>{"160", "72"}));
    EXPECT_EQ(state.foodUnits, (std::vector<std::string>{"1 cup (160 g)", "1 large (50 g)"}));
    // Position k of dailyRows is the day with id k because the placeholder row is passed over.
    ASSERT_EQ(state.dailyRows.size(), 2u);
    EXPECT_EQ(state.dailyRows[0], (DayRow{"0", "Sunday November 15", "0", "0"}));
    EXPECT_EQ(state.dailyRows[1], (DayRow{"1", "Monday November 16", "250", "40"}));
    EXPECT_EQ(log.count(" 100, 100 "), 3u);
    EXPECT_TRUE(log.contains("(Apples, Egg)"));
    EXPECT_EQ(state.lastSql, "select * from dailyData");
}

TEST_F(CalorieStoreTest, OneRowAndEmptyTablesYieldEmptyLists) {
    execSql(state.databasePath,
            "CREATE TABLE profileData (id INTEGER, calorieBudget TEXT, startingDate TEXT);"
            "INSERT INTO profileData VALUES (2, '1850', 'x');"
            "CREATE TABLE dailyData (id INTEGER, date TEXT, calorieConsumed, calorieBurned);");
    LogCapture log;
    store.readDataFromDatabase();
    store.readDataFromDatabaseMainTable();
    EXPECT_TRUE(state.profileRows.empty());
    EXPECT_TRUE(state.dailyRows.empty());
    EXPECT_TRUE(log.contains(" 100, 100 "));  // the only row was the skipped one
    EXPECT_TRUE(log.contains(" 101, 100 "));  // nothing at all
}

TEST_F(CalorieStoreTest, SecondFoodReadAppendsCaloriesAndUnitsButNotNames) {
    makeDatabase();
    store.readDataFromDatabaseFoodTable();
    store.readDataFromDatabaseFoodTable();
    EXPECT_EQ(state.foodNames.size(), 2u);
    EXPECT_EQ(state.foodCalories, (std::vector<std::string>{"160", "72", "160", "72"}));
    EXPECT_EQ(state.foodUnits.size(), 4u);
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
    EXPECT_TRUE(log.contains("Succesfully Inserted "));

    EXPECT_EQ(column("SELECT typeof(id) || ':' || id FROM dailyData WHERE id >= 0"),
              (std::vector<std::string>{"integer:0", "integer:1"}));
    EXPECT_EQ(column("SELECT calorieConsumed FROM dailyData WHERE id = 1"),
              std::vector<std::string>{"250"});
    EXPECT_EQ(column("SELECT calorieBudget FROM profileData"),
              (std::vector<std::string>{"0", "2400"}));
}

TEST_F(CalorieStoreTest, UpdateOfAMissingDayStillReportsSuccess) {
    makeDatabase();
    LogCapture log;
    store.UpdateDatabase1("calorieBurned", "99", 42);
    EXPECT_TRUE(log.contains("Succesfully Updated "));
    EXPECT_EQ(column("SELECT count(*) FROM dailyData WHERE calorieBurned = 99"),
              std::vector<std::string>{"0"});
}

TEST_F(CalorieStoreTest, ADoubleQuoteInAValueFailsToPrepareAndLosesNothingElse) {
    makeDatabase("INSERT INTO dailyData VALUES (0, 'Sunday November 15', 10, 0);");
    LogCapture log;
    store.UpdateDatabase1("calorieConsumed", "5\"0", 0);
    EXPECT_FALSE(log.contains("Succesfully Updated "));
    EXPECT_TRUE(std::any_of(log.lines().begin(), log.lines().end(), [](const std::string& l) {
        return l.find("syntax error") != std::string::npos ||
               l.find("unrecognized token") != std::string::npos;
    }));
    EXPECT_EQ(column("SELECT calorieConsumed FROM dailyData WHERE id = 0"),
              std::vector<std::string>{"10"});
    store.UpdateDatabase1("calorieConsumed", "60", 0);  // the next write goes through
    EXPECT_EQ(column("SELECT calorieConsumed FROM dailyData WHERE id = 0"),
              std::vector<std::string>{"60"});
}

TEST_F(CalorieStoreTest, MissingTablesAreLoggedAndLeaveListsEmpty) {
    std::ofstream(state.databasePath) << "";  // an empty file is an empty database
    LogCapture log;
    store.readDataFromDatabaseMainTable();
    store.insertDatabase("Sunday November 15", 0);
    EXPECT_TRUE(state.dailyRows.empty());
    EXPECT_TRUE(log.contains("no such table: dailyData"));
    EXPECT_FALSE(log.contains("Saved"));
}

TEST_F(CalorieStoreTest, AFailedOpenIsSilent) {
    state.databasePath = dir.file("no-such-folder/food.db");
    LogCapture log;
    store.readDataFromDatabase();
    store.UpdateDatabase("calorieBudget", "1");
    EXPECT_TRUE(state.profileRows.empty());
    EXPECT_TRUE(state.lastSql.empty());
    EXPECT_EQ(log.lines(), (std::vector<std::string>{"()", "calorieBudget 1",
                                                     "UPDATE profileData SET \"calorieBudget\"=\"1\" "
                                                     "WHERE id=2;"}));
}

TEST_F(CalorieStoreTest, TheShippedFileIsCopiedOnceAndNeverReplaced) {
    const std::filesystem::path shipped = std::filesystem::path(FOOD_DB_PATH).parent_path();
    store.checkAndCreateDatabase(shipped);
    ASSERT_TRUE(std::filesystem::exists(state.databasePath));
    store.UpdateDatabase("calorieBudget", "1850");  // the working copy takes writes
    EXPECT_EQ(column("SELECT calorieBudget FROM profileData WHERE id = 2"),
              std::vector<std::string>{"1850"});

    store.checkAndCreateDatabase(shipped);
    EXPECT_EQ(column("SELECT calorieBudget FROM profileData WHERE id = 2"),
              std::vector<std::string>{"1850"});
}

std::string contents(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

// A first start that runs out of room (the write fails) or is killed (the signal's default
// action) halfway through the copy: the file-size limit does either, at the same byte.
TEST_F(CalorieStoreTest, ACopyCutShortLeavesNoFileAndTheNextStartCopiesItWhole) {
    const std::filesystem::path shipped = std::filesystem::path(FOOD_DB_PATH).parent_path();
    ASSERT_GT(std::filesystem::file_size(FOOD_DB_PATH), 256u * 1024);
    for (const bool killed : {false, true}) {
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            const rlimit none{0, 0};
            const rlimit small{256 * 1024, 256 * 1024};
            setrlimit(RLIMIT_CORE, &none);
            std::signal(SIGXFSZ, killed ? SIG_DFL : SIG_IGN);
            setrlimit(RLIMIT_FSIZE, &small);
            store.checkAndCreateDatabase(shipped);
            _exit(0);
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        if (killed) {
            ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGXFSZ) << status;
        } else {
            ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
        }
        EXPECT_FALSE(std::filesystem::exists(state.databasePath)) << killed;
    }
    store.checkAndCreateDatabase(shipped);
    EXPECT_EQ(contents(state.databasePath), contents(FOOD_DB_PATH));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir.path()), {}), 1);
}

// Another connection (a second reader, a backup tool) holds the file for a second: the store's
// write and read wait for it instead of being dropped.
TEST_F(CalorieStoreTest, WritesAndReadsWaitOutAnotherConnectionsLock) {
    makeDatabase("INSERT INTO dailyData VALUES (0, 'Sunday November 15', 10, 0);");
    int consumed = 10;
    for (const char* hold : {"BEGIN; SELECT count(*) FROM dailyData;", "BEGIN EXCLUSIVE;"}) {
        sqlite3* other = nullptr;
        ASSERT_EQ(sqlite3_open(state.databasePath.c_str(), &other), SQLITE_OK);
        ASSERT_EQ(sqlite3_exec(other, hold, nullptr, nullptr, nullptr), SQLITE_OK);
        std::thread release([other] {
            std::this_thread::sleep_for(std::chrono::seconds(1));
            sqlite3_exec(other, "COMMIT;", nullptr, nullptr, nullptr);
            sqlite3_close(other);
        });
        consumed += 10;
        store.UpdateDatabase1("calorieConsumed", std::to_string(consumed), 0);
        store.readDataFromDatabaseMainTable();
        release.join();
        ASSERT_EQ(state.dailyRows.size(), 1u) << hold;
        EXPECT_EQ(state.dailyRows[0][2], std::to_string(consumed)) << hold;
    }
}

}  // namespace
