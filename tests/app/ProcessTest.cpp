// The program as a person runs it: a real process on a data folder of its own, with no display
// at all (as over ssh) unless drawn offscreen. Its commands and its refusals must leave the plan
// file whole, and where it cannot go on it ends with the reason and a non-zero status.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QGuiApplication>
#include <QPointer>
#include <QProcess>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <fstream>
#include <functional>

#include "app/EndMessage.h"
#include "support/Fixtures.h"

using namespace std::chrono_literals;
namespace fs = std::filesystem;

namespace {

constexpr int kDeadlineMs = 120000;  // a sanitizer build on a busy machine starts slowly

QString q(const fs::path& path) { return QString::fromStdString(path.string()); }

std::unique_ptr<QProcess> start(const fs::path& dataDir, const QStringList& extra, bool display) {
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("QT_QPA_PLATFORM", display ? "offscreen" : "xcb");
    env.remove("DISPLAY");
    env.insert("TZ", "UTC");
    env.insert("ASAN_OPTIONS", "detect_leaks=0:abort_on_error=1");
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(env);
    process->start(CALORIE_COUNTER_BIN,
                   QStringList{"--data-dir", q(dataDir), "--launch-hold-ms", "0"} + extra);
    return process;
}

struct Ran {
    int status;
    QString out, err;
};

// The program must end by itself, and without a signal.
Ran run(const fs::path& dataDir, const QStringList& arguments, bool display = false) {
    const auto process = start(dataDir, arguments, display);
    EXPECT_TRUE(process->waitForFinished(kDeadlineMs)) << "still running";
    EXPECT_EQ(process->exitStatus(), QProcess::NormalExit) << "killed by a signal";
    return {process->exitCode(), QString::fromLocal8Bit(process->readAllStandardOutput()),
            QString::fromLocal8Bit(process->readAllStandardError())};
}

// A normal start, drawn offscreen and quit at once: whether it went to the set-up.
bool startRunsTheSetUp(const fs::path& folder) {
    const Ran ran = run(folder, {"--log", "--screenshot", q(folder / "shot.png")}, true);
    EXPECT_EQ(ran.status, 0) << ran.err.toStdString();
    return ran.err.split('\n').contains("firstTime");
}

QString firstTime(const fs::path& folder) {
    const QSettings defaults(q(folder / "defaults.ini"), QSettings::IniFormat);
    return defaults.value("firstTime").toString();
}

// The file an answer names as the one the plan's former file is kept in.
fs::path keptAs(const QString& answer) {
    return QRegularExpression(" kept as (.*\\.db)").match(answer).captured(1).toStdString();
}

// A data folder as a finished set-up leaves it, with a plan of 366 days begun at start.
struct DataFolder {
    explicit DataFolder(Instant start) {
        fs::create_directories(path);
        fs::copy_file(FOOD_DB_PATH, database);
        fs::permissions(database, fs::perms::owner_write, fs::perm_options::add);
        writePlan(database, start, "1850", 366);
        QSettings(q(path / "defaults.ini"), QSettings::IniFormat).setValue("firstTime", "no");
    }
    TempDir dir;
    const fs::path beside = dir.path();  // for the files a test brings or makes
    const fs::path path = beside / "data";
    const std::string database = (path / "food.db").string();
};

// One plan's way through the commands, each checked on the file: backed up, restored into a
// fresh folder and started there on the tabs, put back from the newest automatic backup, and set
// aside for a new plan.
TEST(DataCommands, APlanTakenThroughEveryCommandKeepsItsDays) {
    const DataFolder from(Clock::now() - 24h * 5 - 3h);
    execSql(from.database, "UPDATE dailyData SET calorieConsumed = '500' WHERE id = 0");
    const fs::path backup = from.beside / "plan.db";
    EXPECT_EQ(run(from.path, {"--backup", q(backup)}).out, "Backed up to " + q(backup) + ".\n");

    const fs::path to = from.beside / "new" / "data", live = to / "food.db";
    EXPECT_EQ(run(to, {"--restore", q(backup)}).out, "Restored the plan from " + q(backup) + ".\n");
    EXPECT_EQ(dayInFile(live.string(), 0), "500 0");
    EXPECT_FALSE(startRunsTheSetUp(to));

    // Newer by its name than the automatic backup that start made.
    execSql(live.string(), "UPDATE dailyData SET calorieConsumed = '700' WHERE id = 0");
    fs::create_directories(to / "backups");
    fs::copy_file(live, to / "backups" / "food-2099-01-01.db");
    execSql(live.string(), "UPDATE dailyData SET calorieConsumed = '999' WHERE id = 0");
    EXPECT_EQ(dayInFile(keptAs(run(to, {"--restore", "latest"}).out).string(), 0), "999 0");
    EXPECT_EQ(dayInFile(live.string(), 0), "700 0");

    const std::string before = bytesOf(live);
    EXPECT_TRUE(bytesOf(keptAs(run(to, {"--new-plan"}).out)) == before);
    EXPECT_TRUE(startRunsTheSetUp(to));
}

// Whatever it cannot do, it says why, offers the ways out that apply and leaves the plan file as
// it was: a plan that cannot be shown (each kind of damage is named by the plan check), a file
// that is not a whole plan, no backup to go back to, two commands at once (bad input, status 2)
// or no display to start on (as over ssh, where --help and --version still answer). The ended
// plan's first way out works.
TEST(Program, WhatItCannotDoItRefusesWithTheReasonAndLeavesThePlanFileAsItWas) {
    struct Case {
        QStringList arguments;
        std::function<void(const std::string& db)> breakage;
        int status;
        QString says;
        const char* ways = "";  // the options offered, in order, each followed by a space
    };
    const auto noDays = [](const auto& db) { execSql(db, "DELETE FROM dailyData WHERE id >= 0"); };
    const auto noise = [](const auto& db) { std::ofstream(db) << std::string(4096, '\x5a'); };
    const TempDir files;
    noise(files.file("noise.db"));
    const auto file = [&](const char* name) { return q(files.path() / name); };
    const Case cases[] = {
        {{}, {}, 1, "ended on ", "--export-csv --new-plan "},
        {{}, noDays, 1, "was interrupted before its days were stored", "--finish-plan --new-plan "},
        // Not taken for a first start: a new set-up would bury the plan's loss.
        {{}, [](const auto& db) { fs::remove(db); }, 1, "is missing", "--new-plan "},
        {{}, noise, 1, "the file is damaged: file is not a database", "--new-plan "},
        {{"--export-csv", file("ended.csv")}, {}, 0, "Exported 366 days to "},
        {{"--restore", file("noise.db")}, {}, 1, "calorie-counter: Nothing was restored from "},
        {{"--restore", "latest"}, {}, 1, "calorie-counter: There is no automatic backup in "},
        {{"--new-plan", "--export-csv", file("a.csv")}, {}, 2, "Give at most one of "},
        {{"--backup", file("a.db"), "--backup", file("b.db")}, {}, 2, "Give at most one of "},
        {{"--version"}, {}, 0, "calorie-counter "},
        {{"--idiom", "pad", "--help"}, {}, 0, "--data-dir"},
        // A data folder named like the option is a start, and a start needs the display.
        {{"--data-dir", "--help"}, {}, 1, "calorie-counter: This application failed to start"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE((c.arguments.join(" ") + " → " + c.says).toStdString());
        const DataFolder folder(Clock::now() - 24h * 366 - 3h);  // its 366 days are over
        if (c.breakage) c.breakage(folder.database);
        const std::string before = bytesOf(folder.database);
        // Bad input is parsed again once the GUI platform has taken its own options.
        const Ran ran = run(folder.path, c.arguments, c.arguments.isEmpty() || c.status == 2);
        EXPECT_EQ(ran.status, c.status);
        EXPECT_TRUE((ran.status == 0 ? ran.out : ran.err).contains(c.says))
            << ran.err.toStdString();
        QString offered;
        for (const QString& line : ran.err.split('\n'))
            if (line.startsWith("  calorie-counter --")) offered += line.section(' ', 3, 3) + ' ';
        EXPECT_EQ(offered.toStdString(), c.ways);
        // A deleted file has nothing to keep.
        EXPECT_TRUE(before.empty() || bytesOf(folder.database) == before);
        EXPECT_EQ(firstTime(folder.path), "no");
        EXPECT_FALSE(fs::exists(folder.path / "backups"));
    }
    EXPECT_FALSE(fs::exists(files.file("a.csv")) || fs::exists(files.file("a.db")));
}

// While a copy runs on the folder, a second copy and the commands that replace the plan's file
// are refused, naming it, and touch nothing; reading the plan goes ahead. Killed, it leaves its
// lock file behind but no longer holds the folder.
TEST(Program, WhileACopyRunsOnlyReadingItsDataFolderGoesAhead) {
    const DataFolder folder(Clock::now());
    const auto first = start(folder.path, {}, true);
    const fs::path lock = folder.path / "calorie-counter.lock";
    ASSERT_TRUE(QTest::qWaitFor([&] { return fs::exists(lock) || !first->processId(); },
                                kDeadlineMs));
    ASSERT_EQ(first->state(), QProcess::Running) << first->readAllStandardError().toStdString();
    const QString busy = "calorie-counter: the program is already running with the data folder " +
                         q(folder.path) + QString(" (process %1)").arg(first->processId());
    const std::string before = bytesOf(folder.database);
    const fs::path backup = folder.beside / "plan.db";
    const std::pair<QStringList, QString> cases[] = {
        {{"--backup", q(backup)}, "Backed up to "},
        {{"--export-csv", q(folder.beside / "plan.csv")}, "Exported 366 days"},
        {{"--restore", q(backup)}, busy},
        {{"--new-plan"}, busy},
        {{}, busy},
    };
    for (const auto& [arguments, says] : cases) {
        SCOPED_TRACE(arguments.join(' ').toStdString());
        const Ran ran = run(folder.path, arguments, arguments.isEmpty());
        EXPECT_EQ(ran.status, says == busy ? 1 : 0);
        EXPECT_TRUE((ran.out + ran.err).contains(says)) << ran.err.toStdString();
        EXPECT_TRUE(bytesOf(folder.database) == before);
        EXPECT_EQ(firstTime(folder.path), "no");
    }
    EXPECT_EQ(first->state(), QProcess::Running);
    first->kill();
    first->waitForFinished(kDeadlineMs);
    EXPECT_FALSE(startRunsTheSetUp(folder.path));
}

// Every accessible name under node, and the first button named `press`.
void collect(QAccessibleInterface* node, QStringList& names, QAccessibleInterface*& button,
             const QString& press) {
    if (!node) return;
    const QString name = node->text(QAccessible::Name);
    if (!name.isEmpty()) names << name;
    if (name == press && node->role() == QAccessible::Button && !button) button = node;
    for (int i = 0; i < node->childCount(); ++i) collect(node->child(i), names, button, press);
}

// The window a person reads when the program cannot go on: the reason as a sentence, there until
// its Quit button is pressed (as a screen reader presses it) or Escape is.
TEST(EndMessageWindow, ShowsTheReasonUntilThePersonQuitsByButtonOrKey) {
    for (const bool byKey : {false, true}) {
        QStringList names;
        QPointer<QQuickWindow> shown;
        bool pressed = false;
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, [&] {
            for (QWindow* window : QGuiApplication::topLevelWindows()) {
                auto* quick = qobject_cast<QQuickWindow*>(window);
                QAccessibleInterface* quit = nullptr;
                if (pressed || !quick || !quick->isVisible()) continue;
                collect(QAccessible::queryAccessibleInterface(quick), names, quit, "Quit");
                if (!quit) continue;  // not laid out yet
                shown = quick, pressed = true;
                if (byKey)
                    QTest::keyClick(quick, Qt::Key_Escape);
                else
                    quit->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
            }
        });
        poll.start(50);
        bool timedOut = false;  // should it never close, the test fails rather than hangs
        QTimer deadline;
        deadline.setSingleShot(true);
        QObject::connect(&deadline, &QTimer::timeout, [&] {
            timedOut = true;
            for (QWindow* window : QGuiApplication::topLevelWindows()) window->close();
        });
        deadline.start(10000);
        showEndMessageWindow("the plan in /data/food.db has no profile record");
        EXPECT_TRUE(pressed && !timedOut);
        EXPECT_TRUE(!shown || !shown->isVisible());  // closed: gone, or hidden
        EXPECT_TRUE(names.contains("Calorie Counter cannot go on")) << names.join('|').toStdString();
        EXPECT_TRUE(names.contains("The plan in /data/food.db has no profile record."));
    }
}

}  // namespace
