#include "app/CommandLine.h"

#include <QCommandLineParser>
#include <QRegularExpression>

namespace {
constexpr QSize kPhone(320, 568);
constexpr QSize kPad(768, 1024);

CommandLineResult fail(const QString& message) {
    return {std::nullopt, 2, message};
}
}  // namespace

CommandLineResult parseCommandLine(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        "A calorie counter: book what you eat and burn against a daily budget.");
    const QCommandLineOption help({"h", "help"}, "Show this help and exit.");
    const QCommandLineOption version("version", "Show the version and exit.");
    const QCommandLineOption idiom("idiom", "Device idiom: phone (320x568) or pad (768x1024).",
                                   "phone|pad", "phone");
    const QCommandLineOption screen(
        "screen", "The device's screen in points, overriding the idiom's (e.g. 320x480).", "WxH");
    const QCommandLineOption window(
        "window",
        "The window's size at start; the screen is scaled to fit it (default: the screen's).",
        "WxH");
    const QCommandLineOption dataDir(
        "data-dir", "Folder for food.db and the user defaults (created if missing).", "DIR");
    const QCommandLineOption log("log", "Write developer log lines to stderr.");
    const QCommandLineOption hold("launch-hold-ms", "How long the launch image stays.", "N",
                                  "2000");
    const QCommandLineOption screenshot(
        "screenshot", "Save the window as PNG once the first screen is shown and idle, then quit.",
        "FILE");
    const QCommandLineOption report(
        "report-startup",
        "For benchmarks: print the time to the first frame of the first "
        "screen and the resident memory, then quit.");
    const QCommandLineOption exportCsv("export-csv",
                                       "Write the plan's days to a CSV file and exit.", "FILE");
    const QCommandLineOption backup("backup", "Copy the plan to a backup file and exit.", "FILE");
    const QCommandLineOption restore(
        "restore",
        "Put a backup back in place of the plan and exit; \"latest\" is the newest automatic "
        "backup. The replaced plan is kept in backups/.",
        "FILE");
    const QCommandLineOption newPlan(
        "new-plan", "Set the plan aside in backups/ and exit; the next start runs the set-up.");
    const QCommandLineOption finishPlan(
        "finish-plan",
        "Store the plan's days from the profile a set-up stopped halfway has stored, and exit.");
    parser.addOptions({help, version, idiom, screen, window, dataDir, log, hold, screenshot, report,
                       exportCsv, backup, restore, newPlan, finishPlan});

    if (!parser.parse(arguments)) return fail(parser.errorText());
    if (parser.isSet(help)) return {std::nullopt, 0, parser.helpText()};
    if (parser.isSet(version)) return {std::nullopt, 0, "calorie-counter " CC_VERSION};
    if (!parser.positionalArguments().isEmpty())
        return fail("Unexpected argument: " + parser.positionalArguments().first());

    LaunchOptions options;
    const QString idiomValue = parser.value(idiom);
    if (idiomValue != "phone" && idiomValue != "pad")
        return fail("--idiom must be phone or pad, not \"" + idiomValue + "\"");
    options.pad = idiomValue == "pad";
    options.screen = options.pad ? kPad : kPhone;

    for (const auto& [option, size] :
         {std::pair{&screen, &options.screen}, {&window, &options.window}}) {
        if (!parser.isSet(*option)) continue;
        const QString value = parser.value(*option);
        const auto match = QRegularExpression("^(\\d{2,5})x(\\d{2,5})$").match(value);
        if (!match.hasMatch())
            return fail("--" + option->names().first() + " must look like 320x480, not \"" + value +
                        "\"");
        *size = QSize(match.captured(1).toInt(), match.captured(2).toInt());
    }

    bool ok = false;
    options.launchHoldMs = parser.value(hold).toInt(&ok);
    if (!ok || options.launchHoldMs < 0 || options.launchHoldMs > 60000)
        return fail("--launch-hold-ms must be a whole number of milliseconds from 0 to 60000");

    if (parser.isSet(dataDir)) {
        options.dataDir = parser.value(dataDir);
        if (options.dataDir.isEmpty()) return fail("--data-dir needs a folder");
    }
    if (parser.isSet(screenshot)) {
        options.screenshot = parser.value(screenshot);
        if (options.screenshot.isEmpty()) return fail("--screenshot needs a file name");
    }

    using Kind = DataCommand::Kind;
    int commands = 0;
    for (const auto& [option, kind] :
         {std::pair{&newPlan, Kind::newPlan}, {&finishPlan, Kind::finishPlan}}) {
        if (!parser.isSet(*option)) continue;
        options.dataCommand = DataCommand{kind, {}};
        ++commands;
    }
    for (const auto& [option, kind] : {std::pair{&exportCsv, Kind::exportCsv},
                                       {&backup, Kind::backup},
                                       {&restore, Kind::restore}}) {
        // Each value counts: --backup a --backup b is two commands as much as --backup --restore.
        for (const QString& file : parser.values(*option)) {
            if (file.isEmpty()) return fail("--" + option->names().first() + " needs a file name");
            options.dataCommand = DataCommand{kind, file};
            ++commands;
        }
    }
    if (commands > 1)
        return fail(
            "Give at most one of --export-csv, --backup, --restore, --new-plan and --finish-plan");

    options.log = parser.isSet(log);
    options.reportStartup = parser.isSet(report);
    return {options, 0, {}};
}
