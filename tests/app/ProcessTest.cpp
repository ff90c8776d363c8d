// The program as a person starts it: a real process on a data folder, which must refuse a second
// copy of itself and, where it cannot go on, end with a message and status 1.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QDeadlineTimer>
#include <QFile>
#include <QGuiApplication>
#include <QQuickWindow>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <functional>

#include "app/EndMessage.h"
#include "app/Program.h"

using namespace std::chrono_literals;

namespace {

// --help and --version answer where no window can be shown, as over ssh; a start there ends
// with the reason, not an abort.
TEST(Program, AnswersHelpAndVersionWithoutADisplayAndOtherwiseSaysWhyItCannotStart) {
    const TempDir dir;
    const Ran version = run(dir.path(), {"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_TRUE(version.out.startsWith("calorie-counter ")) << version.out.toStdString();
    const Ran help = run(dir.path(), {"--idiom", "pad", "--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_TRUE(help.out.contains("calorie-counter [options]") && help.out.contains("--data-dir"))
        << help.out.toStdString();
    // A data folder named like the option is a start, and a start needs the display.
    const Ran start = run(dir.path(), {"--data-dir", "--help"});
    EXPECT_EQ(start.status, 1);
    EXPECT_TRUE(start.err.contains("calorie-counter: This application failed to start")) << start.err.toStdString();
}

// Ways a plan cannot be shown (each kind of damage is named by the plan check): the cause as it
// is, the command-line ways out that apply, status 1, and the file left as it was found.
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
        {"table missing", [](auto& db) { execSql(db, "DROP TABLE dailyData"); },
         "the table dailyData is missing", "--new-plan "},
        {"interrupted", [](auto& db) { execSql(db, "DELETE FROM dailyData WHERE id >= 0"); },
         "was interrupted before its days were stored", "--finish-plan --new-plan "},
        {"deleted", [](auto& db) { std::filesystem::remove(db); }, "is missing", "--new-plan "},
        {"random bytes", [&](auto& db) { damage(db, 0, std::string(4096, '\x5a')); },
         "the file is damaged: file is not a database", "--new-plan "},
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
        const Ran ran = ended(*folder.start());
        const QString& err = ran.err;
        EXPECT_EQ(ran.status, 1) << c.what;
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
    const QString lockFile = q(folder.path() / "calorie-counter.lock");
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
    const Ran second = ended(*folder.start());
    const QString& err = second.err;
    EXPECT_EQ(second.status, 1);
    EXPECT_TRUE(
        err.contains(QString("calorie-counter: the program is already running with the data "
                             "folder %1 (process %2)")
                         .arg(q(folder.path()))
                         .arg(first->processId())))
        << err.toStdString();
    EXPECT_EQ(first->state(), QProcess::Running);
    EXPECT_EQ(contents(folder.database()), before);
    EXPECT_EQ(std::filesystem::last_write_time(folder.database()), modified);

    // A first copy that was killed leaves its lock file behind, but no longer holds the folder.
    first->kill();
    first->waitForFinished(kDeadlineMs);
    const QString shot = q(folder.beside() / "today.png");
    const Ran third = ended(*folder.start({"--screenshot", shot}));
    EXPECT_EQ(third.status, 0) << third.err.toStdString();
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
