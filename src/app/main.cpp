// The entry point: parse the command line, hand the launch to the application delegate, run.
#include <QGuiApplication>
#include <QQuickStyle>
#include <cstdio>

#include "app/AppDelegate.h"
#include "app/DataFolderLock.h"
#include "app/EndMessage.h"
#include "app/StartupReport.h"
#include "store/DevLog.h"
#include "store/ProgramEnd.h"

int main(int argc, char** argv) {
    QGuiApplication::setApplicationName("calorie-counter");
    QGuiApplication::setOrganizationName("calorie-counter");
    // Lets the desktop match the window to its desktop entry, and so show its name and icon.
    QGuiApplication::setDesktopFileName(CC_APP_ID);
    QGuiApplication app(argc, argv);
    QQuickStyle::setStyle("Basic");

    const CommandLineResult parsed = parseCommandLine(app.arguments());
    if (!parsed.options) {
        std::fprintf(parsed.exitCode == 0 ? stdout : stderr, "%s\n", qPrintable(parsed.message));
        if (parsed.exitCode != 0) std::fprintf(stderr, "Try --help.\n");
        return parsed.exitCode;
    }
    const LaunchOptions& options = *parsed.options;
    devlog::setEnabled(options.log);
    installEndMessageWindow();

    // Before anything is read or written: a second program on the folder leaves it untouched.
    const DataFolderLock lock(dataFolderFor(options));
    if (!lock.refusal().isEmpty()) endProgram(lock.refusal().toStdString());

    AppDelegate delegate(options);
    delegate.didFinishLaunchingWithOptions();
    StartupReport report(delegate.quickWindow(), options);
    return app.exec();
}
