#include <gtest/gtest.h>

#include <fstream>

#include "FileFaults.h"
#include "store/PlanBackup.h"
#include "store/PlanRestore.h"
#include "support/Fixtures.h"

namespace {

constexpr const char* kDays = "SELECT group_concat(id || date || calorieConsumed) FROM dailyData";

class PlanRestoreTest : public testing::Test {
protected:
    PlanRestoreTest() {
        std::filesystem::create_directories(data / "backups");
        execSql(makePlan(data / "food.db"), "UPDATE dailyData SET calorieConsumed=1 WHERE id=0");
        execSql(makePlan(candidate), "UPDATE dailyData SET calorieConsumed=2 WHERE id=0");
    }

    TempDir dir;
    const std::filesystem::path data = dir.path() / "data";
    const std::filesystem::path candidate = dir.path() / "candidate.db";
    const Instant now = kPlanStart + std::chrono::hours(24 * 20);
};

// Each kind of wrong file is named by the plan check; the refusal is the same for all.
TEST_F(PlanRestoreTest, AWrongFileIsRefusedWithItsCauseAndTheDataFolderStaysByteForByte) {
    std::ofstream(data / "backups" / "food-2025-12-01.db") << "kept as it is";
    const auto before = snapshot(data);
    for (const Damage kind : {Damage::randomBytes, Damage::noDays}) {
        makePlan(candidate);
        damage(candidate, kind);
        const RestoreResult result = restore(candidate, data, now);
        EXPECT_FALSE(result.check.ok()) << describe(kind);
        EXPECT_EQ(result.error, result.check.text()) << describe(kind);
        EXPECT_EQ(snapshot(data), before) << describe(kind);
    }
}

TEST_F(PlanRestoreTest, ABackupRestoredIntoAFolderThatHadNothingIsThePlanWithoutUserDefaults) {
    ASSERT_TRUE(backup(candidate, dir.path() / "backup.db", "carried").ok());
    const std::filesystem::path fresh = dir.path() / "new" / "data";
    const RestoreResult result = restore(dir.path() / "backup.db", fresh, now);
    ASSERT_TRUE(result.ok()) << result.error;
    EXPECT_EQ(result.firstTime, "carried");
    EXPECT_TRUE(result.kept.empty());
    EXPECT_EQ(snapshot(fresh).size(), 1u);
    EXPECT_EQ(queryJoined(fresh / "food.db",
                          "SELECT group_concat(name) FROM sqlite_schema WHERE type = 'table'"),
              "profileData,food,dailyData");
    EXPECT_EQ(queryJoined(fresh / "food.db", "PRAGMA integrity_check"), "ok");
    EXPECT_EQ(queryJoined(fresh / "food.db", kDays), queryJoined(candidate, kDays));
}

TEST_F(PlanRestoreTest, TheReplacedFileIsKeptUnderANameOfItsOwnEveryTime) {
    const std::string first = bytesOf(data / "food.db");
    const RestoreResult result = restore(candidate, data, now);
    ASSERT_TRUE(result.ok()) << result.error;
    EXPECT_EQ(result.firstTime, "no");  // a plan file with days but no user defaults
    EXPECT_EQ(result.kept, data / "backups" / "food-before-restore-2025-12-04T093000.db");
    EXPECT_EQ(bytesOf(result.kept), first);
    EXPECT_EQ(queryJoined(data / "food.db", kDays), queryJoined(candidate, kDays));

    // The same moment again: the first kept file is not overwritten.
    const std::string second = bytesOf(data / "food.db");
    const RestoreResult again = restore(result.kept, data, now);
    ASSERT_TRUE(again.ok()) << again.error;
    EXPECT_EQ(again.kept, data / "backups" / "food-before-restore-2025-12-04T093000-2.db");
    EXPECT_EQ(bytesOf(again.kept), second);
    EXPECT_EQ(bytesOf(result.kept), first);
    EXPECT_EQ(dayInFile((data / "food.db").string(), 0), "1 0");
    EXPECT_EQ(snapshot(data).size(), 4u);  // food.db, backups and the two kept files
}

// WAL mode is kept in the file's header: a copy made page by page would carry it into food.db.
TEST_F(PlanRestoreTest, AFileInWalModeComesBackWithTheRollbackJournalTheAppUses) {
    execSql(candidate.string(), "PRAGMA journal_mode = WAL");
    ASSERT_EQ(queryJoined(candidate, "PRAGMA journal_mode"), "wal");
    ASSERT_TRUE(restore(candidate, data, now).ok());
    EXPECT_EQ(queryJoined(data / "food.db", "PRAGMA journal_mode"), "delete");
    EXPECT_EQ(queryJoined(data / "food.db", kDays), queryJoined(candidate, kDays));
}

}  // namespace
