// The data commands as a person runs them: the real program on real data folders, with no
// display at all (as over ssh) unless a test starts it to look at the plan afterwards.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QLockFile>
#include <QProcess>
#include <QSettings>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

#include "support/Fixtures.h"

using namespace std::chrono_literals;
namespace fs = std::filesystem;
using Row = std::vector<std::string>;

namespace {

std::string contents(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

QString q(const fs::path& path) {
    return QString::fromStdString(path.string());
}

struct Ran {
    int status;
    QString out, err;
};

Ran run(const fs::path& dataDir, const QStringList& arguments, bool display = false) {
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("QT_QPA_PLATFORM", display ? "offscreen" : "xcb");
    env.remove("DISPLAY");
    env.remove("WAYLAND_DISPLAY");
    env.insert("TZ", "UTC");
    env.insert("ASAN_OPTIONS", "detect_leaks=0:abort_on_error=1");
    QProcess process;
    process.setProcessEnvironment(env);
    process.start(CALORIE_COUNTER_BIN,
                  QStringList{"--data-dir", q(dataDir), "--launch-hold-ms", "0"} + arguments);
    // A sanitizer build on a busy machine starts slowly.
    EXPECT_TRUE(process.waitForFinished(120000)) << arguments.join(' ').toStdString();
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit) << arguments.join(' ').toStdString();
    return {process.exitCode(), QString::fromLocal8Bit(process.readAllStandardOutput()),
            QString::fromLocal8Bit(process.readAllStandardError())};
}

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

// A data folder as a finished set-up leaves it, with a 366-day plan begun at start.
struct DataFolder {
    TempDir dir;
    fs::path path = dir.path() / "data";
    fs::path db = path / "food.db";

    explicit DataFolder(Instant start) {
        fs::create_directories(path);
        fs::copy_file(FOOD_DB_PATH, db);
        fs::permissions(db, fs::perms::owner_write, fs::perm_options::add);
        writePlan(db.string(), start, "1850", 366);
        QSettings(q(path / "defaults.ini"), QSettings::IniFormat).setValue("firstTime", "no");
    }
};

// RFC 4180: a quoted field may hold commas, doubled quotes and line breaks; records end in CRLF.
// A bare line break outside quotes stays in its field, where the checks then find it.
std::vector<Row> parseCsv(const std::string& text) {
    std::vector<Row> rows(1);
    std::string field;
    bool quoted = false;
    for (size_t i = 0; i < text.size(); ++i) {
        if (quoted && text.compare(i, 2, "\"\"") == 0) {
            field += text[i++];
        } else if (text[i] == '"' && (quoted || field.empty())) {
            quoted = !quoted;
        } else if (!quoted && text[i] == ',') {
            rows.back().push_back(std::exchange(field, {}));
        } else if (!quoted && text.compare(i, 2, "\r\n") == 0) {
            rows.back().push_back(std::exchange(field, {}));
            rows.emplace_back();
            ++i;
        } else {
            field += text[i];
        }
    }
    EXPECT_TRUE(field.empty() && rows.back().empty()) << "the last record has no CRLF";
    rows.pop_back();
    return rows;
}

TEST(DataCommands, ExportsEndedAndRunningPlansOneRowPerDay) {
    const Instant now = std::chrono::floor<std::chrono::seconds>(Clock::now());
    const DateFormatter isoDate("yyyy-MM-dd", DateLocale::posix);  // the tests' zone is UTC
    for (const Instant start : {now - 24h * 400, now - 24h * 5 - 3h}) {
        const DataFolder folder(start);
        execSql(folder.db.string(),
                "UPDATE dailyData SET date = 'Lunch, \"big\"' || char(10) || 'day', "
                "calorieConsumed = '2100', calorieBurned = '300' WHERE id = 1");
        const fs::path csv = folder.dir.path() / "plan.csv";
        const Ran ran = run(folder.path, {"--export-csv", q(csv)});
        ASSERT_EQ(ran.status, 0) << ran.err.toStdString();
        EXPECT_EQ(ran.out, "Exported 366 days to " + q(csv) + ".\n");

        const std::vector<Row> rows = parseCsv(contents(csv));
        ASSERT_EQ(rows.size(), 367u);
        EXPECT_EQ(rows[0],
                  (Row{"day", "date", "label", "consumed", "burned", "budget", "remaining"}));
        for (size_t day = 1; day < rows.size(); ++day) {
            ASSERT_EQ(rows[day].size(), 7u) << "day " << day;
            EXPECT_EQ(rows[day][0], std::to_string(day));
            EXPECT_EQ(rows[day][1], isoDate.format(start + 24h * (day - 1))) << "day " << day;
            if (day != 2) {
                EXPECT_EQ(Row(rows[day].begin() + 3, rows[day].end()),
                          (Row{"0", "0", "1850", "1850"}))
                    << "day " << day;
            }
        }
        EXPECT_EQ(rows[2], (Row{"2", isoDate.format(start + 24h), "Lunch, \"big\"\nday", "2100",
                                "300", "1850", "-250"}));
    }
}

TEST(DataCommands, ABackupRestoredIntoAFreshFolderStartsOnTheTabs) {
    const DataFolder from(Clock::now() - 3h);
    execSql(from.db.string(), "UPDATE dailyData SET calorieConsumed = '500' WHERE id = 0");
    const fs::path backup = from.dir.path() / "plan.db";
    const Ran saved = run(from.path, {"--backup", q(backup)});
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
    const fs::path dir = folder.dir.path();
    std::string noise(8192, '\0');
    std::generate(noise.begin(), noise.end(), std::mt19937(7));
    std::ofstream(dir / "noise.db", std::ios::binary) << noise;
    std::ofstream(dir / "empty.db").close();
    execSql((dir / "other.db").string(), "CREATE TABLE notes (text TEXT)");
    const std::string before = contents(folder.db);

    const std::pair<QStringList, int> cases[] = {
        {{"--restore", q(dir / "noise.db")}, 1},
        {{"--restore", q(dir / "empty.db")}, 1},
        {{"--restore", q(dir / "other.db")}, 1},
        {{"--restore", q(dir / "missing.db")}, 1},
        {{"--restore", "latest"}, 1},
        {{"--backup", q(dir / "a.db"), "--restore", q(dir / "noise.db")}, 2},
        {{"--new-plan", "--export-csv", q(dir / "a.csv")}, 2},
        {{"--backup", q(dir / "a.db"), "--backup", q(dir / "b.db")}, 2},
    };
    for (const auto& [arguments, status] : cases) {
        // Bad input is parsed again once the GUI platform has taken its own options.
        const Ran ran = run(folder.path, arguments, status == 2);
        const std::string what = arguments.join(' ').toStdString();
        EXPECT_EQ(ran.status, status) << what;
        EXPECT_TRUE(ran.err.contains(status == 1 ? "calorie-counter: " : "Give at most one"))
            << what << ": " << ran.err.toStdString();
        EXPECT_GT(ran.err.size(), 40) << what;
        EXPECT_TRUE(ran.out.isEmpty()) << what;
        EXPECT_EQ(contents(folder.db), before) << what;
        EXPECT_EQ(firstTime(folder.path), "no") << what;
    }
    EXPECT_FALSE(fs::exists(folder.path / "backups"));
    EXPECT_FALSE(fs::exists(dir / "a.db") || fs::exists(dir / "a.csv"));
}

TEST(DataCommands, ANewPlanKeepsTheOldFileAndTheNextStartRunsTheSetUp) {
    const DataFolder folder(Clock::now() - 3h);
    const std::string before = contents(folder.db);
    const Ran ran = run(folder.path, {"--new-plan"});
    ASSERT_EQ(ran.status, 0) << ran.err.toStdString();
    const auto kept = filesIn(folder.path / "backups");
    ASSERT_EQ(kept.size(), 1u);
    EXPECT_EQ(contents(kept[0]), before);
    EXPECT_TRUE(ran.out.contains(q(kept[0]))) << ran.out.toStdString();
    EXPECT_NE(firstTime(folder.path), "no");

    EXPECT_TRUE(startLog(folder.path).contains("firstTime")) << "no set-up";
}

TEST(DataCommands, WhileTheProgramRunsOnlyTheReadingCommandsGoAhead) {
    const DataFolder folder(Clock::now() - 3h);
    QLockFile running(q(folder.path / "calorie-counter.lock"));
    running.setStaleLockTime(0);
    ASSERT_TRUE(running.tryLock(0));
    const fs::path backup = folder.dir.path() / "plan.db";
    EXPECT_EQ(run(folder.path, {"--backup", q(backup)}).status, 0);
    EXPECT_EQ(run(folder.path, {"--export-csv", q(backup) + ".csv"}).status, 0);

    const std::string before = contents(folder.db);
    for (const QStringList& change : {QStringList{"--restore", q(backup)}, {"--new-plan"}}) {
        const Ran ran = run(folder.path, change);
        EXPECT_EQ(ran.status, 1);
        EXPECT_TRUE(ran.err.startsWith("calorie-counter: the program is already running") &&
                    ran.err.contains(QString::number(QCoreApplication::applicationPid())))
            << ran.err.toStdString();
        EXPECT_EQ(contents(folder.db), before);
        EXPECT_EQ(firstTime(folder.path), "no");
    }
    EXPECT_FALSE(fs::exists(folder.path / "backups"));
}

}  // namespace
