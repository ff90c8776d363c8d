#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <optional>
#include <thread>

#include "FileFaults.h"
#include "store/AppState.h"
#include "store/CalorieStore.h"
#include "support/Fixtures.h"

namespace {

class CalorieStoreTest : public testing::Test {
protected:
    CalorieStoreTest() {
        state.databaseName = "food.db";
        state.databasePath = dir.file("food.db");
    }

    TempDir dir;
    AppState state;
    CalorieStore store{state};
};

// The first row of every table is a placeholder, and the live profile row is the second one.
TEST_F(CalorieStoreTest, DaysWrittenThroughTheStoreReadBackWithoutEachTablesFirstRow) {
    makePlan(state.databasePath, 0);
    LogCapture log;
    store.insertDatabase("Sunday November 15", 0);
    store.insertDatabase("Monday November 16", 1);
    int overlayShown = 0;
    store.setBeforeDailyUpdate([&] {
        ++overlayShown;
        EXPECT_TRUE(log.lines().back() == "Saved");  // shown before anything else is logged
    });
    store.UpdateDatabase1("calorieConsumed", "250", 1);
    EXPECT_EQ(overlayShown, 1);

    store.readDataFromDatabase();
    store.readDataFromDatabaseMainTable();
    store.readDataFromDatabaseFoodTable();
    store.readDataFromDatabaseFoodTable();  // only the names are emptied first
    EXPECT_EQ(state.profileRows, (std::vector<ProfileRow>{{"1850", "2025-11-14 09:30:00 +0000"}}));
    // Position k of dailyRows is the day with id k because the placeholder row is passed over.
    EXPECT_EQ(state.dailyRows, (std::vector<DayRow>{{"0", "Sunday November 15", "0", "0"},
                                                    {"1", "Monday November 16", "250", "0"}}));
    const size_t foods =
        std::stoul(queryColumn(state.databasePath, "SELECT count(*) FROM food")[0]);
    ASSERT_EQ(state.foodNames.size(), foods - 1);
    ASSERT_EQ(state.foodCalories.size(), 2 * (foods - 1));
    EXPECT_EQ(std::tuple(state.foodNames[0], state.foodCalories[0], state.foodUnits.at(0)),
              std::tuple("Abiyuch, raw", "79", "0.5 cup (114 g)"));
    EXPECT_EQ(log.count(" 100, 100 "), 4u);
    EXPECT_EQ(state.lastSql, "select * from food");
}

// A first start that runs out of room (the write fails) or is killed (the signal's default
// action) halfway through the copy: the file-size limit does either, at the same byte.
TEST_F(CalorieStoreTest, ACopyCutShortLeavesNoFileAndTheNextStartCopiesItWholeOnce) {
    const std::filesystem::path shipped = std::filesystem::path(FOOD_DB_PATH).parent_path();
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
    EXPECT_EQ(queryColumn(state.databasePath, "SELECT calorieBudget FROM profileData WHERE id = 2"),
              std::vector<std::string>{"1850"});
}

constexpr int kNotCalled = 100;

// A booking through the store, as the Today screen makes it; the failure handler's kind, or
// kNotCalled, is the result. Run in a child, the value travels as the exit status.
int book(const std::string& database) {
    AppState state;
    state.databasePath = database;
    CalorieStore store(state);
    std::optional<WriteFailure> failure;
    store.setWriteFailureHandler([&](WriteFailure kind) { failure = kind; });
    store.UpdateDatabase1("calorieConsumed", "777", 5);
    return failure ? static_cast<int>(*failure) : kNotCalled;
}

// A booking that is not stored says why, and one that waits out another connection's short lock
// (a backup tool, a second reader) is stored.
TEST(StoreWriteFailureTest, ABookingSaysWhyItIsNotStoredAndWaitsOutAShortLock) {
    using Path = std::filesystem::path;
    const struct {
        const char* fault;
        int expected;                                    // a WriteFailure, or kNotCalled
        std::function<bool(const Path& database)> make;  // in the child; false: not here
    } cases[] = {
        // A real full disk: a tmpfs just large enough for the file, filled up.
        {"full disk", static_cast<int>(WriteFailure::diskFull),
         [](const Path& database) {
             const std::string bytes = bytesOf(database);
             if (!mountSmallDisk(database.parent_path(), bytes.size() + 64 * 1024)) return false;
             std::ofstream(database, std::ios::binary) << bytes;
             fillDisk(database.parent_path());
             return true;
         }},
        // Mounted read-only, as a read-only medium or a sandbox has it: permission bits do not
        // stop root.
        {"read-only disk", static_cast<int>(WriteFailure::readOnly),
         [](const Path& database) { return mountReadOnly(database.parent_path()); }},
        {"damaged file", static_cast<int>(WriteFailure::damaged),
         [](const Path& database) { damage(database, Damage::junk); return true; }},
        {"folder gone", static_cast<int>(WriteFailure::cannotOpen),
         [](const Path& database) { return std::filesystem::remove_all(database.parent_path()); }},
        // Another program's lock, held past the store's wait (it ends with the child).
        {"lock held", static_cast<int>(WriteFailure::locked),
         [](const Path& database) {
             return holdLock(database, "BEGIN EXCLUSIVE").release() != nullptr;
         }},
        {"short lock", kNotCalled,
         [](const Path& database) {
             std::thread([lock = holdLock(database, "BEGIN EXCLUSIVE")]() mutable {
                 std::this_thread::sleep_for(std::chrono::milliseconds(300));
                 lock.reset();
             }).detach();
             return true;
         }},
    };
    for (const auto& c : cases) {
        TempDir dir;
        const std::string database = makePlan(dir.file("data/food.db"));
        const int status =
            inChild([&] { return c.make(database) ? book(database) : kCannotMakeFault; });
        if (status == kCannotMakeFault) {
            std::printf("[  SKIPPED ] %s: this system does not allow it\n", c.fault);
            continue;
        }
        EXPECT_EQ(status, c.expected) << c.fault;
        // The booking is stored whole or not at all, where a day can still be read.
        const bool readable = c.expected != static_cast<int>(WriteFailure::damaged);
        if (readable && std::filesystem::exists(database)) {
            EXPECT_EQ(dayInFile(database, 5), c.expected == kNotCalled ? "777 0" : "0 0")
                << c.fault;
        }
    }
}

}  // namespace
