// The data commands as a person runs them: the real program on real data folders, with no
// display at all (as over ssh) unless a test starts it to look at the plan afterwards.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QLockFile>
#include <fstream>

#include "app/Program.h"

using namespace std::chrono_literals;
namespace fs = std::filesystem;

namespace {

// A normal start on folder, drawn offscreen and quit at once; its developer log.
QStringList startLog(const fs::path& folder) {
    const Ran ran = run(folder, {"--log", "--screenshot", q(folder / "shot.png")}, true);
    EXPECT_EQ(ran.status, 0) << ran.err.toStdString();
    EXPECT_TRUE(fs::exists(folder / "shot.png"));
    return ran.err.split('\n');
}

std::vector<fs::path> filesIn(const fs::path& folder, std::string_view prefix = {}) {
    std::vector<fs::path> found;
    for (const auto& entry : fs::directory_iterator(folder))
        if (entry.path().filename().string().starts_with(prefix)) found.push_back(entry.path());
    return found;
}

QString firstTime(const fs::path& folder) {
    return QSettings(q(folder / "defaults.ini"), QSettings::IniFormat)
        .value("firstTime")
        .toString();
}

// The fields themselves are read back by the export's own test; here, the command on a plan that
// has ended and on one that runs.
TEST(DataCommands, ExportsEndedAndRunningPlansOneRowPerDay) {
    const Instant now = std::chrono::floor<std::chrono::seconds>(Clock::now());
    const DateFormatter isoDate("yyyy-MM-dd", DateLocale::posix);  // the tests' zone is UTC
    for (const Instant start : {now - 24h * 400, now - 24h * 5 - 3h}) {
        const DataFolder folder(start);
        const fs::path csv = folder.beside() / "plan.csv";
        const Ran ran = run(folder.path(), {"--export-csv", q(csv)});
        ASSERT_EQ(ran.status, 0) << ran.err.toStdString();
        EXPECT_EQ(ran.out, "Exported 366 days to " + q(csv) + ".\n");
        const QStringList rows = QString::fromStdString(contents(csv)).split("\r\n");
        ASSERT_EQ(rows.size(), 368);  // a header, 366 days, and nothing after the last CRLF
        EXPECT_EQ(rows[366].section(',', 0, 1),
                  "366," + QString::fromStdString(isoDate.format(start + 24h * 365)));
    }
}

TEST(DataCommands, ABackupRestoredIntoAFreshFolderStartsOnTheTabs) {
    const DataFolder from(Clock::now() - 3h);
    execSql(from.database(), "UPDATE dailyData SET calorieConsumed = '500' WHERE id = 0");
    const fs::path backup = from.beside() / "plan.db";
    const Ran saved = run(from.path(), {"--backup", q(backup)});
    ASSERT_EQ(saved.status, 0) << saved.err.toStdString();
    EXPECT_EQ(saved.out, "Backed up to " + q(backup) + ".\n");

    const TempDir fresh;
    const fs::path to = fresh.path() / "new" / "data";
    const Ran restored = run(to, {"--restore", q(backup)});
    ASSERT_EQ(restored.status, 0) << restored.err.toStdString();
    EXPECT_EQ(restored.out, "Restored the plan from " + q(backup) + ".\n");
    EXPECT_EQ(firstTime(to), "no");
    EXPECT_EQ(dayInFile((to / "food.db").string(), 0), "500 0");

    EXPECT_FALSE(startLog(to).contains("firstTime")) << "the set-up ran again";

    // "latest" takes the newest automatic backup by its name; the file it replaces is kept.
    fs::create_directories(to / "backups");
    fs::copy_file(backup, to / "backups" / "food-2020-03-01.db");
    fs::copy_file(FOOD_DB_PATH, to / "backups" / "food-2020-01-01.db");
    execSql((to / "food.db").string(), "UPDATE dailyData SET calorieConsumed = '999' WHERE id = 0");
    const Ran latest = run(to, {"--restore", "latest"});
    ASSERT_EQ(latest.status, 0) << latest.err.toStdString();
    EXPECT_EQ(dayInFile((to / "food.db").string(), 0), "500 0");
    const auto kept = filesIn(to / "backups", "food-before-restore-");
    ASSERT_EQ(kept.size(), 1u);
    EXPECT_EQ(dayInFile(kept[0].string(), 0), "999 0");
}

// Refused with a message and nothing changed: a file that is not a whole plan, no backup to go
// back to (status 1), or two commands at once (bad input, status 2).
TEST(DataCommands, WhatCannotBeDoneChangesNothing) {
    const DataFolder folder(Clock::now() - 3h);
    const fs::path dir = folder.beside();
    // Each kind of wrong file is refused in the restore's own test; here, one.
    std::ofstream(dir / "noise.db") << std::string(8192, 'x');
    const std::string before = contents(folder.database());

    const std::pair<QStringList, int> cases[] = {
        {{"--restore", q(dir / "noise.db")}, 1},
        {{"--restore", q(dir / "missing.db")}, 1},
        {{"--restore", "latest"}, 1},
        {{"--new-plan", "--export-csv", q(dir / "a.csv")}, 2},
        {{"--backup", q(dir / "a.db"), "--backup", q(dir / "b.db")}, 2},
    };
    for (const auto& [arguments, status] : cases) {
        // Bad input is parsed again once the GUI platform has taken its own options.
        const Ran ran = run(folder.path(), arguments, status == 2);
        const std::string what = arguments.join(' ').toStdString();
        EXPECT_EQ(ran.status, status) << what;
        EXPECT_TRUE(ran.err.contains(status == 1 ? "calorie-counter: " : "Give at most one"))
            << what << ": " << ran.err.toStdString();
        EXPECT_GT(ran.err.size(), 40) << what;
        EXPECT_TRUE(ran.out.isEmpty()) << what;
        EXPECT_EQ(contents(folder.database()), before) << what;
        EXPECT_EQ(firstTime(folder.path()), "no") << what;
    }
    EXPECT_FALSE(fs::exists(folder.path() / "backups"));
    EXPECT_FALSE(fs::exists(dir / "a.db") || fs::exists(dir / "a.csv"));
}

TEST(DataCommands, ANewPlanKeepsTheOldFileAndTheNextStartRunsTheSetUp) {
    const DataFolder folder(Clock::now() - 3h);
    const std::string before = contents(folder.database());
    const Ran ran = run(folder.path(), {"--new-plan"});
    ASSERT_EQ(ran.status, 0) << ran.err.toStdString();
    const auto kept = filesIn(folder.path() / "backups");
    ASSERT_EQ(kept.size(), 1u);
    EXPECT_EQ(contents(kept[0]), before);
    EXPECT_TRUE(ran.out.contains(q(kept[0]))) << ran.out.toStdString();
    EXPECT_NE(firstTime(folder.path()), "no");

    EXPECT_TRUE(startLog(folder.path()).contains("firstTime")) << "no set-up";
}

TEST(DataCommands, WhileTheProgramRunsOnlyTheReadingCommandsGoAhead) {
    const DataFolder folder(Clock::now() - 3h);
    QLockFile running(q(folder.path() / "calorie-counter.lock"));
    running.setStaleLockTime(0);
    ASSERT_TRUE(running.tryLock(0));
    const fs::path backup = folder.beside() / "plan.db";
    EXPECT_EQ(run(folder.path(), {"--backup", q(backup)}).status, 0);
    EXPECT_EQ(run(folder.path(), {"--export-csv", q(backup) + ".csv"}).status, 0);

    const std::string before = contents(folder.database());
    for (const QStringList& change : {QStringList{"--restore", q(backup)}, {"--new-plan"}}) {
        const Ran ran = run(folder.path(), change);
        EXPECT_EQ(ran.status, 1);
        EXPECT_TRUE(ran.err.startsWith("calorie-counter: the program is already running") &&
                    ran.err.contains(QString::number(QCoreApplication::applicationPid())))
            << ran.err.toStdString();
        EXPECT_EQ(contents(folder.database()), before);
        EXPECT_EQ(firstTime(folder.path()), "no");
    }
    EXPECT_FALSE(fs::exists(folder.path() / "backups"));
}

}  // namespace
