#include "app/DataCommands.h"

#include <QFile>
#include <cstdio>
#include <filesystem>
#include <optional>

#include "app/AppDelegate.h"
#include "app/DataFolderLock.h"
#include "app/SettingsDefaults.h"
#include "store/YourData.h"

namespace {

// The path as the file system spells it, whatever the locale's encoding.
std::filesystem::path localPath(const QString& path) {
    return std::filesystem::path(QFile::encodeName(path).toStdString());
}

DataOutcome run(const YourData& data, const DataCommand& command) {
    const std::filesystem::path file = localPath(command.file);
    const Instant now = Clock::now();
    switch (command.kind) {
        case DataCommand::Kind::exportCsv:
            return data.exportCsv(file);
        case DataCommand::Kind::backup:
            return data.backUp(file);
        case DataCommand::Kind::restore:
            return command.file == "latest" ? data.restoreLatest(now) : data.restore(file, now);
        case DataCommand::Kind::newPlan:
            return data.startNewPlan(now);
        case DataCommand::Kind::finishPlan:
            return data.finishPlan(now);
    }
    return {};
}

int refused(const std::string& reason) {
    std::fprintf(stderr, "calorie-counter: %s\n", reason.c_str());
    return 1;
}

}  // namespace

int runDataCommand(const LaunchOptions& options) {
    const DataCommand& command = *options.dataCommand;
    const QString folder = dataFolderFor(options);

    // A running program holds food.db open and would go on writing to the file replaced under
    // it; an export or a backup only reads a consistent snapshot, so they need no lock.
    std::optional<DataFolderLock> lock;
    if (command.kind != DataCommand::Kind::exportCsv && command.kind != DataCommand::Kind::backup) {
        lock.emplace(folder);
        if (!lock->refusal().isEmpty()) return refused(lock->refusal().toStdString());
    }

    SettingsDefaults defaults(options.dataDir);
    const YourData data(defaults, localPath(folder));
    const DataOutcome outcome = run(data, command);
    if (!outcome.ok) return refused(outcome.text);
    std::printf("%s\n", outcome.text.c_str());
    return 0;
}
