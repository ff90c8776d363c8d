// The entry point: parse the command line, hand the launch to the application delegate, run.
#include <QDir>
#include <QGuiApplication>
#include <QQuickStyle>
#include <QQuickWindow>
#include <cstdio>
#include <memory>

#include "app/AppDelegate.h"
#include "app/DataCommands.h"
#include "app/DataFolderLock.h"
#include "app/EndMessage.h"
#include "app/StartupReport.h"
#include "store/DevLog.h"
#include "store/ProgramEnd.h"

namespace {

QtMessageHandler previousHandler = nullptr;

// Qt ends the process from inside the application's constructor when it finds no display: it
// ends with the reason and status 1, as the program does elsewhere, not with an abort.
void endOnFatal(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (type == QtFatalMsg) endProgram(message.toStdString());
    if (previousHandler) previousHandler(type, context, message);
}

// Without a GPU, OpenGL is Mesa's software rasteriser, which compiles every shader with LLVM as
// the first screen is drawn and keeps LLVM's 55 MB mapped: Qt Quick's own software renderer
// draws these 2D screens sooner and in half the memory (and is what the screenshots use).
// QT_QUICK_BACKEND still decides when it is set.
void chooseRenderer() {
    const bool gpu = !QDir("/dev/dri").entryList(QDir::System | QDir::NoDotAndDotDot).isEmpty();
    if (!gpu && !qEnvironmentVariableIsSet("QT_QUICK_BACKEND"))
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}

std::unique_ptr<QCoreApplication> makeApplication(int& argc, char** argv, bool answerOnly) {
    if (answerOnly) return std::make_unique<QCoreApplication>(argc, argv);
    previousHandler = qInstallMessageHandler(endOnFatal);
    auto app = std::make_unique<QGuiApplication>(argc, argv);
    qInstallMessageHandler(previousHandler);
    return app;
}

}  // namespace

int main(int argc, char** argv) {
    QGuiApplication::setApplicationName("calorie-counter");
    QGuiApplication::setOrganizationName("calorie-counter");
    // Lets the desktop match the window to its desktop entry, and so show its name and icon.
    QGuiApplication::setDesktopFileName(CC_APP_ID);
    // --help, --version and the data commands answer without a display (over ssh, for
    // help2man): the GUI platform, which ends the process when there is none, is needed only
    // to start.
    QStringList arguments;
    for (int i = 0; i < argc; ++i) arguments << QString::fromLocal8Bit(argv[i]);
    const CommandLineResult early = parseCommandLine(arguments);
    const bool answerOnly =
        early.options ? early.options->dataCommand.has_value() : early.exitCode == 0;
    const std::unique_ptr<QCoreApplication> app = makeApplication(argc, argv, answerOnly);
    QQuickStyle::setStyle("Basic");
    chooseRenderer();

    const CommandLineResult parsed = parseCommandLine(app->arguments());
    if (!parsed.options) {
        std::fprintf(parsed.exitCode == 0 ? stdout : stderr, "%s\n", qPrintable(parsed.message));
        if (parsed.exitCode != 0) std::fprintf(stderr, "Try --help.\n");
        return parsed.exitCode;
    }
    const LaunchOptions& options = *parsed.options;
    devlog::setEnabled(options.log);
    if (options.dataCommand) return runDataCommand(options);
    installEndMessageWindow();

    // Before anything is read or written: a second program on the folder leaves it untouched.
    const DataFolderLock lock(dataFolderFor(options));
    if (!lock.refusal().isEmpty()) endProgram(lock.refusal().toStdString());

    AppDelegate delegate(options);
    delegate.didFinishLaunchingWithOptions();
    StartupReport report(delegate.quickWindow(), options);
    return app->exec();
}
