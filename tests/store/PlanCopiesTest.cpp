// The plan's file copied out and back: backups, restores and the CSV export.
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <cstring>
#include <fstream>

#include "FileFaults.h"
#include "store/PlanBackup.h"
#include "store/PlanExport.h"
#include "store/PlanRestore.h"
#include "support/Fixtures.h"

using namespace std::chrono_literals;

namespace {

constexpr const char* kEverything =
    "SELECT group_concat(calorieBudget || startingDate) FROM profileData UNION ALL "
    "SELECT count(*) || ':' || sum(calories) || group_concat(name) FROM food UNION ALL "
    "SELECT group_concat(id || date || calorieConsumed || calorieBurned) FROM dailyData";

// A backup carries the set-up flag beside the plan and leaves WAL mode behind; restored into a
// folder that had nothing it is the plan alone, and restored over a plan it keeps the replaced file
// under a name of its own, every time.
TEST(PlanBackupTest, ACopyAndARestoreCarryThePlanAndLoseNoFileTheyReplace) {
    TempDir dir;
    const std::string plan = makePlan(dir.file("plan.db"));
    execSql(plan, "UPDATE dailyData SET calorieConsumed = 640 WHERE id = 12");
    // WAL mode is kept in the file's header, as its read and write versions (bytes 18 and 19): a
    // backup still saying WAL needs write access beside it to be read.
    execSql(plan, "PRAGMA journal_mode = WAL");
    ASSERT_EQ(bytesOf(plan).substr(18, 2), "\2\2");
    const std::filesystem::path copy = dir.path() / "copy.db";
    const BackupResult made = backup(plan, copy, "carried");
    ASSERT_TRUE(made.ok()) << made.error;
    EXPECT_EQ(bytesOf(copy).substr(18, 2), "\1\1");
    EXPECT_EQ(queryJoined(copy, kEverything), queryJoined(plan, kEverything));
    EXPECT_EQ(queryJoined(copy, "SELECT key || '=' || value FROM userDefaults"),
              "firstTime=carried");
    EXPECT_EQ(snapshot(dir.path()).size(), 2u);  // no partial copy left beside
    // A copy of a copy carries its own flag only.
    ASSERT_TRUE(backup(copy, dir.file("copy2.db"), "yes").ok());
    EXPECT_EQ(queryJoined(dir.file("copy2.db"), "SELECT value FROM userDefaults"), "yes");

    const std::filesystem::path data = dir.path() / "new" / "data", live = data / "food.db";
    const Instant now = kPlanStart + 24h * 20;
    const RestoreResult fresh = restore(copy, data, now);
    ASSERT_TRUE(fresh.ok()) << fresh.error;
    EXPECT_EQ(fresh.firstTime, "carried");
    EXPECT_TRUE(fresh.kept.empty());
    EXPECT_EQ(snapshot(data).size(), 1u);
    EXPECT_EQ(queryJoined(live, "SELECT group_concat(name) FROM sqlite_schema WHERE type='table'"),
              "profileData,food,dailyData");
    EXPECT_EQ(queryJoined(live, kEverything), queryJoined(plan, kEverything));

    // Restored over: the app's rollback journal, whatever mode the candidate was in.
    execSql(live.string(), "UPDATE dailyData SET calorieConsumed = 1 WHERE id = 0");
    const std::string first = bytesOf(live);
    const RestoreResult over = restore(plan, data, now);
    ASSERT_TRUE(over.ok()) << over.error;
    EXPECT_EQ(over.firstTime, "no");  // a plan file with days but no user defaults
    EXPECT_EQ(over.kept, data / "backups" / "food-before-restore-2025-12-04T093000.db");
    EXPECT_EQ(bytesOf(over.kept), first);
    EXPECT_EQ(queryJoined(live, "PRAGMA journal_mode"), "delete");

    // The same moment again: the first kept file is not overwritten.
    const std::string second = bytesOf(live);
    const RestoreResult again = restore(over.kept, data, now);
    ASSERT_TRUE(again.ok()) << again.error;
    EXPECT_EQ(again.kept, data / "backups" / "food-before-restore-2025-12-04T093000-2.db");
    EXPECT_EQ(bytesOf(again.kept), second);
    EXPECT_EQ(bytesOf(over.kept), first);
    EXPECT_EQ(dayInFile(live.string(), 0), "1 0");
    EXPECT_EQ(snapshot(data).size(), 4u);  // food.db, backups and the two kept files
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

    for (int day = 1; day <= 10; ++day) {
        const Instant today = kPlanStart + 24h * day;
        const BackupResult made = backupDaily(dir.path(), live, "no", today);
        EXPECT_TRUE(made.ok() && !made.file.empty()) << made.error;
        // Later the same day: nothing new.
        EXPECT_TRUE(backupDaily(dir.path(), live, "no", today + 5h).file.empty());
    }
    std::map<std::string, std::string> kept;
    for (const char* name : others) kept[name] = name;
    for (int day = 18; day <= 24; ++day) {
        const std::string name = "food-2025-11-" + std::to_string(day) + ".db";
        kept[name] = bytesOf(backups / name);
        EXPECT_EQ(queryJoined(backups / name, "SELECT count(*) FROM dailyData"), "367") << name;
    }
    EXPECT_EQ(snapshot(backups), kept);
    EXPECT_EQ(latestBackup(dir.path()), backups / "food-2025-11-24.db");

    // A damaged plan is never an automatic backup, which would push a good one out.
    damage(live, Damage::pageScrambled);
    const BackupResult damaged = backupDaily(dir.path(), live, "no", kPlanStart + 24h * 11);
    EXPECT_EQ(damaged.error.substr(0, 21), "the copy is damaged: ") << damaged.error;
    EXPECT_EQ(snapshot(backups), kept);
}

// What a restore cannot keep it does not replace; what belongs to the replaced file goes with it,
// as a stale index beside the restored plan would be taken for its own.
TEST(PlanBackupTest, ARestoreKeepsTheReplacedPlanWithItsSideFilesOrReplacesNothing) {
    TempDir dir;
    const std::string plan = makePlan(dir.file("plan.db"));
    const std::filesystem::path data = dir.path() / "data", live = data / "food.db";
    std::filesystem::create_directories(data);
    makePlan(live);
    execSql(live.string(), "UPDATE dailyData SET calorieConsumed = 5 WHERE id = 0");
    const std::string before = bytesOf(live);
    std::ofstream(data / "backups") << "a file where the folder goes";
    const RestoreResult refused = restore(plan, data, kPlanStart);
    EXPECT_TRUE(refused.error.starts_with("the current plan could not be kept: ")) << refused.error;
    EXPECT_EQ(bytesOf(live), before);

    std::filesystem::remove(data / "backups");
    std::ofstream(live.string() + "-shm") << "a stale index";
    const RestoreResult over = restore(plan, data, kPlanStart);
    ASSERT_TRUE(over.ok()) << over.error;
    EXPECT_EQ(bytesOf(over.kept.string() + "-shm"), "a stale index");
    EXPECT_FALSE(std::filesystem::exists(live.string() + "-shm"));
}

// A copy that fails after the candidate passed its check refuses with the reason, never quietly:
// here the copy in memory is held to one page, as when memory runs out.
TEST(PlanBackupTest, ARestoreWhoseCopyFailsSaysWhyAndPutsNothingInPlace) {
    TempDir dir;
    const std::string plan = makePlan(dir.file("plan.db"));
    const auto onePage = [](sqlite3* db, char**, const sqlite3_api_routines*) {
        if (*sqlite3_db_filename(db, "main") == '\0')
            sqlite3_exec(db, "PRAGMA max_page_count = 1", nullptr, nullptr, nullptr);
        return SQLITE_OK;
    };
    const auto entry = reinterpret_cast<void (*)()>(+onePage);
    sqlite3_auto_extension(entry);
    const RestoreResult copied = restore(plan, dir.path() / "data", kPlanStart);
    sqlite3_cancel_auto_extension(entry);
    EXPECT_EQ(copied.error, "the file cannot be read: database or disk is full");
    EXPECT_FALSE(std::filesystem::exists(dir.path() / "data" / "food.db"));
}

class PlanExportTest : public testing::Test {
protected:
    std::string exported(int days = 366) {
        const ExportResult result = exportPlan(database, csv);
        EXPECT_TRUE(result.ok()) << result.error;
        EXPECT_EQ(result.days, days);
        return bytesOf(csv);
    }

    TempDir dir;
    const std::string database = makePlan(dir.file("food.db"));
    const std::string csv = dir.file("plan.csv");
};

// As a spreadsheet reads CSV: records end with CRLF, a field with a comma, quote or line break
// is quoted and its quotes doubled.
TEST_F(PlanExportTest, EveryDayComesOutWholeWhateverItsLabelHolds) {
    const ScopedTimeZone zone("Pacific/Honolulu");  // the plan's days begin a day earlier there
    execSql(database,
            "UPDATE dailyData SET date = 'Fri, 14 \"Nov\"', calorieConsumed = 2300, "
            "calorieBurned = 120 WHERE id = 0;"
            "UPDATE dailyData SET date = 'two' || char(13, 10) || 'lines' || char(10) || 'é',"
            " calorieConsumed = 900 WHERE id = 1;");
    const std::string text = exported();
    const std::string first =
        "day,date,label,consumed,burned,budget,remaining\r\n"
        "1,2025-11-13,\"Fri, 14 \"\"Nov\"\"\",2300,120,1850,-450\r\n"
        "2,2025-11-14,\"two\r\nlines\né\",900,0,1850,950\r\n";
    EXPECT_EQ(text.substr(0, first.size()), first);
}

TEST_F(PlanExportTest, ExportsWhateverPlanTheFileHolds) {
    execSql(database,
            "UPDATE profileData SET startingDate = 'soon' WHERE id = 2;"
            "UPDATE dailyData SET calorieConsumed = 50 WHERE id = 3;");
    EXPECT_NE(exported().find("\r\n4,,Monday November 17,50,0,1850,1800\r\n"), std::string::npos);
    damage(database, Damage::noProfile);
    EXPECT_NE(exported().find("\r\n4,,Monday November 17,50,0,,\r\n"), std::string::npos);
    damage(database, Damage::noDays);
    EXPECT_EQ(exported(0), "day,date,label,consumed,burned,budget,remaining\r\n");
}

// One snapshot: a booking committed while the export reads is in all of its rows or in none.
TEST_F(PlanExportTest, ABookingCommittedMidExportIsNotHalfIn) {
    static std::string plan;
    static bool booked;
    plan = database, booked = false;
    const auto traceEach = [](sqlite3* db, char**, const sqlite3_api_routines*) {
        sqlite3_trace_v2(db, SQLITE_TRACE_STMT, [](unsigned, void*, void*, void* sql) {
            if (booked || !std::strstr(static_cast<const char*>(sql), "FROM dailyData"))
                return 0;
            booked = true;  // as the days are read, after the budget was: another program books
            sqlite3* other = nullptr;
            sqlite3_open(plan.c_str(), &other);
            sqlite3_exec(other, "BEGIN; UPDATE profileData SET calorieBudget = 2000;"
                         "UPDATE dailyData SET calorieConsumed = 2000 WHERE id = 0; COMMIT",
                         nullptr, nullptr, nullptr);
            sqlite3_close(other);
            return 0;
        }, nullptr);
        return SQLITE_OK;
    };
    const auto entry = reinterpret_cast<void (*)()>(+traceEach);
    sqlite3_auto_extension(entry);
    std::string day1 = exported();
    sqlite3_cancel_auto_extension(entry);
    day1 = day1.substr(day1.find("\r\n1,") + 2);
    day1.resize(day1.find('\r'));
    EXPECT_TRUE(booked);
    EXPECT_TRUE(day1.ends_with(",0,0,1850,1850") || day1.ends_with(",2000,0,2000,0")) << day1;
}

// Whole or absent: a failed export leaves no file of its own and an earlier one as it was.
TEST_F(PlanExportTest, AFailedExportSaysWhyAndLeavesNothingHalfWritten) {
    EXPECT_EQ(exportPlan(database, dir.file("gone/plan.csv")).error,
              "the folder " + dir.file("gone") + " does not exist");
    EXPECT_EQ(exportPlan(database, dir.path()).error, dir.path().string() + " is a folder");
    std::ofstream(csv) << "an earlier export";
    const auto before = snapshot(dir.path());
    // The file-size limit stands in for a full disk: writes past it fail with EFBIG.
    const int status = inChild([&] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit small{4096, 4096};
        setrlimit(RLIMIT_FSIZE, &small);
        const std::string error = exportPlan(database, csv).error;
        return error == "the file has grown past the size this system allows" ? 0 : 1;
    });
    EXPECT_EQ(status, 0);
    EXPECT_EQ(snapshot(dir.path()), before);
}

}  // namespace
