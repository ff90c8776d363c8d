#pragma once
// The program's command line. A bad option or value is the caller's mistake: it gets a message
// and status 2, never a start with half-understood settings.

#include <QSize>
#include <QString>
#include <QStringList>
#include <optional>

// Work on the plan's data instead of a start: at most one per run.
struct DataCommand {
    enum class Kind { exportCsv, backup, restore, newPlan, finishPlan };
    Kind kind = Kind::exportCsv;
    QString file;  // empty for newPlan and finishPlan; for restore, "latest" is the newest automatic backup
};

struct LaunchOptions {
    bool pad = false;
    QSize screen;  // the device's screen in points; the idiom's size unless given
    QSize window;  // the window's size at start; empty: the screen's
    QString dataDir;
    bool log = false;
    int launchHoldMs = 2000;
    QString screenshot;
    bool reportStartup = false;
    std::optional<DataCommand> dataCommand;
};

struct CommandLineResult {
    std::optional<LaunchOptions> options;  // empty: exit with exitCode after printing message
    int exitCode = 0;
    QString message;
};

CommandLineResult parseCommandLine(const QStringList& arguments);
