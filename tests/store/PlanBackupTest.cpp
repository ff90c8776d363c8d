#include <gtest/gtest.h>

#include <atomic>
#include <fstream>
#include <thread>

#include "FileFaults.h"
#include "store/AppState.h"
#include "store/CalorieStore.h"
#include "store/PlanBackup.h"
#include "support/Fixtures.h"

using namespace std::chrono_literals;

namespace {

std::string integrity(const std::filesystem::path& file) {
    return queryJoined(file, "PRAGMA integrity_check");
}

TEST(PlanBackupTest, ACopyHoldsThePlanAndTheSetUpFlagAndTheLiveFileStaysAsItWas) {
    constexpr const char* kEverything =
        "SELECT group_concat(calorieBudget || startingDate) FROM profileData UNION ALL "
        "SELECT count(*) || ':' || sum(calories) || group_concat(name) FROM food UNION ALL "
        "SELECT group_concat(id || date || calorieConsumed || calorieBurned) FROM dailyData";
    TempDir dir;
    const std::string live = makePlan(dir.file("food.db"));
    execSql(live, "UPDATE dailyData SET calorieConsumed = 640 WHERE id = 12");
    const std::string liveBytes = bytesOf(live);

    const BackupResult result = backup(live, dir.file("copy.db"), "no");
    ASSERT_TRUE(result.ok()) << result.error;
    EXPECT_EQ(result.file, dir.file("copy.db"));
    EXPECT_EQ(integrity(result.file), "ok");
    EXPECT_EQ(queryJoined(result.file, kEverything), queryJoined(live, kEverything));
    EXPECT_EQ(queryJoined(result.file, "SELECT key || '=' || value FROM userDefaults"),
              "firstTime=no");
    EXPECT_EQ(bytesOf(live), liveBytes);
    EXPECT_EQ(snapshot(dir.path()).size(), 2u);  // no partial copy left beside

    // A copy of a copy carries its own flag only.
    ASSERT_TRUE(backup(result.file, dir.file("copy2.db"), "yes").ok());
    EXPECT_EQ(queryJoined(dir.file("copy2.db"), "SELECT value FROM userDefaults"), "yes");

    // A damaged plan is never an automatic backup, which would push a good one out.
    damage(live, Damage::pageScrambled);
    const BackupResult damaged = backupDaily(dir.path(), live, "no", kPlanStart);
    EXPECT_EQ(damaged.error.substr(0, 21), "the copy is damaged: ") << damaged.error;
    EXPECT_TRUE(snapshot(dir.path() / "backups").empty());
}

// The app writes bookings while the automatic backup runs on a worker thread. Writer n sets day
// n % 366 to n, so a copy of one moment holds exactly the values k - 365 .. k for its last k.
TEST(PlanBackupTest, ACopyTakenWhileBookingsAreWrittenHoldsOneMoment) {
    TempDir dir;
    AppState state;
    state.databasePath = makePlan(dir.file("food.db"));
    std::atomic<bool> stop = false;
    std::atomic<int> written = 0;
    std::thread writer([&] {
        CalorieStore store(state);
        store.setWriteFailureHandler(
            [](WriteFailure failure) { ADD_FAILURE() << writeFailureText(failure); });
        for (int n = 1; !stop; ++n) {
            store.UpdateDatabase1("calorieConsumed", std::to_string(n), n % 366);
            written = n;
        }
    });
    for (int copy = 0; copy < 5; ++copy) {
        while (written < 40 * (copy + 1)) std::this_thread::yield();
        const std::string file = dir.file("copy" + std::to_string(copy) + ".db");
        const BackupResult result = backup(state.databasePath, file, "no");
        ASSERT_TRUE(result.ok()) << result.error;
        ASSERT_EQ(integrity(file), "ok");
        const auto values =
            queryColumn(file, "SELECT calorieConsumed FROM dailyData WHERE id >= 0 ORDER BY id");
        ASSERT_EQ(values.size(), 366u);
        int last = 0;
        for (const std::string& value : values) last = std::max(last, std::stoi(value));
        EXPECT_GE(last, 40 * (copy + 1));
        for (int id = 0; id < 366; ++id) {
            const int expected = last - ((last - id) % 366 + 366) % 366;
            EXPECT_EQ(values[id], std::to_string(std::max(expected, 0))) << "day " << id;
        }
    }
    stop = true;
    writer.join();
}

TEST(PlanBackupTest, AutomaticBackupsKeepOnePerDayTheNewestSevenAndNothingElseGoes) {
    TempDir dir;
    const std::string live = makePlan(dir.file("food.db"));
    const std::filesystem::path backups = backupFolder(dir.path());
    EXPECT_FALSE(latestBackup(dir.path()));
    std::filesystem::create_directories(backups);
    // Not the automatic backups' names: never pruned.
    const char* others[] = {"food-before-restore-2026-01-01T101500.db", "notes.txt",
                            "food-2026-1-1.db", "food-2026-01-1x.db",
                            "food-2025-11-01.db.partial-abc123"};
    for (const char* name : others) std::ofstream(backups / name) << name;

    std::thread worker([&] {
        for (int day = 1; day <= 10; ++day) {
            const Instant today = kPlanStart + 24h * day;
            const BackupResult made = backupDaily(dir.path(), live, "no", today);
            EXPECT_TRUE(made.ok() && !made.file.empty()) << made.error;
            // Later the same day: nothing new.
            EXPECT_TRUE(backupDaily(dir.path(), live, "no", today + 5h).file.empty());
        }
    });
    worker.join();

    std::vector<std::string> automatic;
    for (const auto& [name, bytes] : snapshot(backups)) {
        if (std::find(std::begin(others), std::end(others), name) != std::end(others)) {
            EXPECT_EQ(bytes, name);
        } else {
            automatic.push_back(name);
            EXPECT_EQ(integrity(backups / name), "ok") << name;
        }
    }
    EXPECT_EQ(automatic, (std::vector<std::string>{"food-2025-11-18.db", "food-2025-11-19.db",
                                                   "food-2025-11-20.db", "food-2025-11-21.db",
                                                   "food-2025-11-22.db", "food-2025-11-23.db",
                                                   "food-2025-11-24.db"}));
    EXPECT_EQ(latestBackup(dir.path()), backups / "food-2025-11-24.db");

    damage(live, Damage::deleted);
    EXPECT_EQ(backupDaily(dir.path(), live, "no", kPlanStart + 24h * 11).error,
              "there is no file at " + live);
    EXPECT_EQ(snapshot(backups).size(), automatic.size() + std::size(others));
}

}  // namespace
