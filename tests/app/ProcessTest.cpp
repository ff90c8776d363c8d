// The program as a person starts it: a real process on a data folder, which must refuse a second
// copy of itself and, where it cannot go on, end with a message and status 1.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QDeadlineTimer>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QQuickWindow>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>

#include "app/EndMessage.h"
#include "support/Fixtures.h"

using namespace std::chrono_literals;

namespace {

constexpr int kDeadlineMs = 120000;  // a sanitizer build on a busy machine starts slowly

std::string contents(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

// A data folder as a finished set-up leaves it, with a plan of `days` records begun at start.
class DataFolder {
public:
    DataFolder(Instant start, int days) {
        std::filesystem::copy_file(FOOD_DB_PATH, database());
        std::filesystem::permissions(database(), std::filesystem::perms::owner_write,
                                     std::filesystem::perm_options::add);
        writePlan(database(), start, "1850", days);
        QSettings(path() + "/defaults.ini", QSettings::IniFormat).setValue("firstTime", "no");
    }
    QString path() const { return QString::fromStdString(dir_.path().string()); }
    std::string database() const { return dir_.file("food.db"); }

    // The program on this folder, drawn offscreen.
    std::unique_ptr<QProcess> start(const QStringList& extra = {}) const {
        auto process = std::make_unique<QProcess>();
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("QT_QPA_PLATFORM", "offscreen");
        env.insert("TZ", "UTC");
        env.insert("ASAN_OPTIONS", "detect_leaks=0:abort_on_error=1");
        process->setProcessEnvironment(env);
        process->start(CALORIE_COUNTER_BIN,
                       QStringList{"--data-dir", path(), "--launch-hold-ms", "0"} + extra);
        return process;
    }

private:
    TempDir dir_;
};

// Waits for the process to end by itself; its stderr.
QString ended(QProcess& process) {
    EXPECT_TRUE(process.waitForFinished(kDeadlineMs)) << "still running";
    return QString::fromLocal8Bit(process.readAllStandardError());
}

void expectEndedWithStatusOne(QProcess& process) {
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit) << "killed by a signal";
    EXPECT_EQ(process.exitCode(), 1);
}

// --help and --version answer where no window can be shown, as over ssh; a start there ends
// with the reason, not an abort.
TEST(Program, AnswersHelpAndVersionWithoutADisplayAndOtherwiseSaysWhyItCannotStart) {
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("QT_QPA_PLATFORM", "xcb");
    env.remove("DISPLAY");
    env.insert("ASAN_OPTIONS", "detect_leaks=0:abort_on_error=1");
    struct Ran {
        int status;
        QString out, err;
    };
    const auto run = [&](const QStringList& arguments) {
        QProcess process;
        process.setProcessEnvironment(env);
        process.start(CALORIE_COUNTER_BIN, arguments);
        EXPECT_TRUE(process.waitForFinished(kDeadlineMs));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit) << arguments.join(' ').toStdString();
        return Ran{process.exitCode(), QString::fromLocal8Bit(process.readAllStandardOutput()),
                   QString::fromLocal8Bit(process.readAllStandardError())};
    };
    const Ran version = run({"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_TRUE(version.out.startsWith("calorie-counter ")) << version.out.toStdString();
    const Ran help = run({"--idiom", "pad", "--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_TRUE(help.out.contains("calorie-counter [options]") && help.out.contains("--data-dir"))
        << help.out.toStdString();
    // A data folder named like the option is a start, and a start needs the display.
    const Ran start = run({"--data-dir", "--help"});
    EXPECT_EQ(start.status, 1);
    EXPECT_TRUE(start.err.contains("calorie-counter: This application failed to start")) << start.err.toStdString();
}

// Each way a plan cannot be shown: the cause as it is, the command-line ways out that apply,
// status 1, and the file left as it was found.
TEST(Program, WhereItCannotGoOnItNamesTheCauseAndTheWaysOutAndKeepsTheFile) {
    const auto damage = [](const std::string& db, std::streamoff at, const std::string& bytes) {
        std::fstream file(db, std::ios::in | std::ios::out | std::ios::binary);
        file.seekp(at);
        file << bytes;
    };
    struct Case {
        const char* what;
        std::function<void(const std::string& db)> breakage;
        const char* cause;
        const char* ways;  // the options offered, in order, each followed by a space
    };
    const Case cases[] = {
        {"ended", {}, "ended on ", "--export-csv --new-plan "},
        {"no profile", [](auto& db) { execSql(db, "DELETE FROM profileData WHERE id = 2"); },
         "has no profile record", "--export-csv --new-plan "},
        {"table missing", [](auto& db) { execSql(db, "DROP TABLE dailyData"); },
         "the table dailyData is missing", "--new-plan "},
        {"interrupted", [](auto& db) { execSql(db, "DELETE FROM dailyData WHERE id >= 0"); },
         "was interrupted before its days were stored", "--finish-plan --new-plan "},
        {"deleted", [](auto& db) { std::filesystem::remove(db); }, "is missing", "--new-plan "},
        {"empty", [](auto& db) { std::filesystem::resize_file(db, 0); }, "the file is empty",
         "--new-plan "},
        {"random bytes", [&](auto& db) { damage(db, 0, std::string(4096, '\x5a')); },
         "the file is damaged: file is not a database", "--new-plan "},
        {"header zeroed", [&](auto& db) { damage(db, 0, std::string(100, '\0')); },
         "the file is damaged", "--new-plan "},
        {"cut short", [](auto& db) { std::filesystem::resize_file(db, 40000); },
         "the file is damaged", "--new-plan "},
        {"a folder", [](auto& db) {
             std::filesystem::remove(db);
             std::filesystem::create_directory(db);
         }, "is not a file", "--new-plan "},
    };
    for (const Case& c : cases) {
        // The plan's 366 days are over.
        const DataFolder folder(Clock::now() - 24h * 366 - 3h, 366);
        if (c.breakage) c.breakage(folder.database());
        const bool file = std::filesystem::is_regular_file(folder.database());
        const std::string before = file ? contents(folder.database()) : "";
        const auto program = folder.start();
        const QString err = ended(*program);
        expectEndedWithStatusOne(*program);
        EXPECT_TRUE(err.contains(c.cause) &&
                    err.contains(QString::fromStdString(folder.database())))
            << c.what << ": " << err.toStdString();
        QString offered;
        for (const QString& line : err.split('\n'))
            if (line.startsWith("  calorie-counter --")) offered += line.section(' ', 3, 3) + ' ';
        EXPECT_EQ(offered.toStdString(), c.ways) << c.what;
        if (file) {
            EXPECT_EQ(contents(folder.database()), before) << c.what;
        }
    }
}

TEST(Program, ASecondCopyOnTheSameDataFolderIsRefusedAndTouchesNothing) {
    const DataFolder folder(Clock::now(), 366);
    const QString lockFile = folder.path() + "/calorie-counter.lock";
    const auto first = folder.start();
    ASSERT_TRUE(first->waitForStarted(kDeadlineMs));
    const QDeadlineTimer deadline(kDeadlineMs);
    while (!QFile::exists(lockFile) && first->state() == QProcess::Running &&
           !deadline.hasExpired())
        QTest::qWait(50);
    ASSERT_EQ(first->state(), QProcess::Running) << first->readAllStandardError().toStdString();
    ASSERT_TRUE(QFile::exists(lockFile));

    const std::string before = contents(folder.database());
    const auto modified = std::filesystem::last_write_time(folder.database());
    const auto second = folder.start();
    const QString err = ended(*second);
    expectEndedWithStatusOne(*second);
    EXPECT_TRUE(
        err.contains(QString("calorie-counter: the program is already running with the data "
                             "folder %1 (process %2)")
                         .arg(folder.path())
                         .arg(first->processId())))
        << err.toStdString();
    EXPECT_EQ(first->state(), QProcess::Running);
    EXPECT_EQ(contents(folder.database()), before);
    EXPECT_EQ(std::filesystem::last_write_time(folder.database()), modified);

    // A first copy that was killed leaves its lock file behind, but no longer holds the folder.
    first->kill();
    first->waitForFinished(kDeadlineMs);
    const QString shot = folder.path() + "/today.png";
    const auto third = folder.start({"--screenshot", shot});
    const QString thirdErr = ended(*third);
    EXPECT_EQ(third->exitCode(), 0) << thirdErr.toStdString();
    EXPECT_TRUE(QFile::exists(shot));
}

// Every accessible name under node, and the first control named `press`.
void collect(QAccessibleInterface* node, QStringList& names, QAccessibleInterface*& button,
             const QString& press) {
    if (!node) return;
    const QString name = node->text(QAccessible::Name);
    if (!name.isEmpty()) names << name;
    if (name == press && node->role() == QAccessible::Button && !button) button = node;
    for (int i = 0; i < node->childCount(); ++i) collect(node->child(i), names, button, press);
}

QQuickWindow* endMessageWindow() {
    for (QWindow* window : QGuiApplication::topLevelWindows()) {
        auto* quick = qobject_cast<QQuickWindow*>(window);
        if (quick && quick->isVisible() && quick->title() == "Calorie Counter") return quick;
    }
    return nullptr;
}

TEST(EndMessageWindow, ShowsTheMessageUntilThePersonQuitsByButtonOrKey) {
    EXPECT_FALSE(hasDisplay());  // offscreen: a test or a headless run never waits on a window

    for (const bool byKey : {false, true}) {
        QStringList names;
        bool closed = false;
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, [&] {
            QQuickWindow* window = endMessageWindow();
            if (!window || closed) return;
            QAccessibleInterface* quit = nullptr;
            collect(QAccessible::queryAccessibleInterface(window), names, quit, "Quit");
            if (!quit) return;  // not laid out yet
            closed = true;
            if (byKey) {
                QTest::keyClick(window, Qt::Key_Escape);
            } else {
                quit->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
            }
        });
        poll.start(50);
        // Should the window never close, the test fails rather than hangs.
        QTimer::singleShot(kDeadlineMs, [] {
            if (QQuickWindow* window = endMessageWindow()) window->hide();
        });
        showEndMessageWindow("the plan in /data/food.db has no profile record");
        EXPECT_TRUE(closed);
        EXPECT_TRUE(names.contains("Calorie Counter cannot go on"))
            << names.join('|').toStdString();
        EXPECT_TRUE(names.contains("The plan in /data/food.db has no profile record."));
        EXPECT_EQ(endMessageWindow(), nullptr);
    }
}

}  // namespace
