#include <gtest/gtest.h>

#include "FileFaults.h"
#include "store/DeadEnd.h"
#include "store/PlanCheck.h"
#include "store/PlanFinish.h"
#include "store/PlanRestore.h"
#include "support/Fixtures.h"

using namespace std::chrono_literals;

namespace {

TEST(PlanCheckTest, NamesWhatIsWrongWithEachKindOfFileAndRestoreRefusesItChangingNothing) {
    const struct {
        Damage damage;
        PlanFault fault;
        std::string text;  // what it starts with; "@" stands for the path
    } cases[] = {
        {Damage::deleted, PlanFault::missing, "there is no file at @"},
        {Damage::folderInPlace, PlanFault::notAFile, "@ is not a file"},
        {Damage::emptied, PlanFault::empty, "the file is empty"},
        {Damage::junk, PlanFault::damaged, "the file is damaged: file is not a database"},
        {Damage::cutShort, PlanFault::damaged,
         "the file is damaged: database disk image is malformed"},
        {Damage::pageScrambled, PlanFault::damaged, "the file is damaged: "},
        {Damage::tableDropped, PlanFault::tableMissing, "the table dailyData is missing"},
        {Damage::columnDropped, PlanFault::columnMissing, "the table food has no column unit"},
        {Damage::noProfile, PlanFault::noProfile, "the file has no profile record"},
        {Damage::noDays, PlanFault::setUpUnfinished,
         "the set-up was interrupted before the plan's days were stored"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        TempDir dir;
        const std::string path = makePlan(dir.file("food.db"));
        damage(path, c.damage);
        const auto before = snapshot(dir.path());
        const PlanCheck check = checkPlan(path);
        EXPECT_EQ(check.fault, c.fault) << check.text();
        std::string text = c.text;
        if (const size_t at = text.find('@'); at != std::string::npos) text.replace(at, 1, path);
        EXPECT_EQ(check.text().substr(0, text.size()), text);
        // Restoring it is refused for the same cause, before anything is written.
        EXPECT_EQ(restore(path, dir.path() / "data", kPlanStart).error, check.text());
        EXPECT_EQ(snapshot(dir.path()), before);
    }
}

TEST(PlanCheckTest, ThePlanEndsOnceTodayIsPastItsLastDay) {
    const ScopedTimeZone zone("Europe/Berlin");
    PlanFacts facts{.start = kPlanStart, .days = 366, .budget = 1850, .hasProfile = true};
    const Instant lastDay = kPlanStart + 365 * 24h;
    EXPECT_FALSE(planEnded(facts, lastDay + 23h + 59min));  // the next minute: DeadEndTest

    // A set-up cut short after ten day rows ends after ten days.
    facts.days = 10;
    EXPECT_EQ(planEnded(facts, kPlanStart + 24h * 10)->text(),
              "the plan ended on 2025-11-23 (today is day 11 of 10)");
}

// A booking's process killed after SQLite wrote pages into the file but before the commit leaves
// a hot journal: that is the last stored plan to be put back, not damage.
TEST(PlanCheckTest, AWriteCutShortIsUndoneAndNotCalledDamage) {
    TempDir dir;
    const std::string path = makePlan(dir.file("food.db"));
    const int status = inChild([&] {
        sqlite3* db = nullptr;
        sqlite3_open(path.c_str(), &db);
        // A tiny cache spills the changed pages into the file before the commit; the child ends
        // without commit, rollback or close.
        return sqlite3_exec(db,
                            "PRAGMA cache_size = 2; BEGIN; UPDATE food SET calories = -1;"
                            "DELETE FROM dailyData;",
                            nullptr, nullptr, nullptr);
    });
    ASSERT_EQ(status, 0);
    ASSERT_TRUE(std::filesystem::exists(path + "-journal"));
    const PlanCheck check = checkPlan(path);
    EXPECT_TRUE(check.ok()) << check.text();
    EXPECT_EQ(queryJoined(path, "SELECT count(*) FROM food WHERE calories = -1"), "0");
}

// The missing day rows come out as the set-up writes them: from the stored start, or from now
// when that does not parse; the rows there are kept.
TEST(PlanFinishTest, AnInterruptedSetUpsDaysAreWrittenAsTheSetUpWouldHave) {
    const char* kDays = "SELECT group_concat(id || date || calorieConsumed) FROM dailyData";
    TempDir dir;
    const std::string whole = makePlan(dir.file("whole.db"));
    const std::string cut = makePlan(dir.file("cut.db"), 10);
    EXPECT_EQ(finishPlan(cut, kPlanStart + 24h * 40), "");
    EXPECT_EQ(queryJoined(cut, kDays), queryJoined(whole, kDays));
    execSql(cut,
            "DELETE FROM dailyData WHERE id >= 200;"
            "UPDATE profileData SET startingDate = 'soon' WHERE id = 2");
    EXPECT_EQ(finishPlan(cut, kPlanStart), "");
    EXPECT_EQ(queryJoined(cut, kDays), queryJoined(whole, kDays));
}

// The start's verdict names what happened and offers only the ways out that can work.
TEST(DeadEndTest, EachCauseOffersTheWaysOutThatApply) {
    TempDir dir;
    const std::string db = makePlan(dir.file("food.db"));
    // The set-up writes "+0000"; plans from before say "GMT".
    execSql(db, "UPDATE profileData SET startingDate = '2025-11-14 09:30:00 GMT' WHERE id = 2");
    const Instant today = kPlanStart + 24h * 10;
    EXPECT_FALSE(findDeadEnd(dir.path(), today));
    EXPECT_EQ(findDeadEnd(dir.path(), today, true).value().cause,
              "the plan's file " + db + " is missing: it was deleted or moved");

    const auto ways = [&](Instant now) {
        const auto end = findDeadEnd(dir.path(), now);
        if (!end) return std::string("none");
        std::string found = end->cause + ":";
        for (const bool way :
             {end->canExport, end->canRestore, end->setUpInterrupted, end->canStartNew})
            found += way ? '1' : '0';
        return found;
    };
    EXPECT_EQ(ways(kPlanStart + 24h * 366),
              "the plan in " + db + " ended on 2026-11-14 (today is day 367 of 366):1001");
    std::filesystem::create_directories(dir.path() / "backups");
    std::filesystem::copy_file(db, dir.path() / "backups" / "food-2025-11-20.db");
    {
        const HeldLock lock = holdLock(db, "BEGIN EXCLUSIVE");
        const auto started = std::chrono::steady_clock::now();
        const auto held = findDeadEnd(dir.path(), today);
        EXPECT_GE(std::chrono::steady_clock::now() - started, kPlanLockWait);
        ASSERT_TRUE(held);
        EXPECT_EQ(
            held->forTerminal(),
            "the plan in " + db + " cannot be opened: another program holds " + db +
                ".\n"
                "  calorie-counter --restore latest    puts back the newest automatic backup\n"
                "  Close the program that holds it, then start again.");
    }
    damage(db, Damage::noDays);
    EXPECT_EQ(ways(today), "the set-up of the plan in " + db +
                               " was interrupted before its days were stored:0111");
}

}  // namespace
