#pragma once
// The program as a person runs it: a real process on a data folder of its own, drawn offscreen
// or, as over ssh, with no display at all.

#include <QProcess>
#include <QSettings>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>

#include "support/Fixtures.h"

inline constexpr int kDeadlineMs = 120000;  // a sanitizer build on a busy machine starts slowly

inline std::string contents(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

inline QString q(const std::filesystem::path& path) {
    return QString::fromStdString(path.string());
}

inline std::unique_ptr<QProcess> startProgram(const QString& dataDir, const QStringList& extra,
                                              bool display = true) {
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("QT_QPA_PLATFORM", display ? "offscreen" : "xcb");
    env.remove("DISPLAY");
    env.remove("WAYLAND_DISPLAY");
    env.insert("TZ", "UTC");
    env.insert("ASAN_OPTIONS", "detect_leaks=0:abort_on_error=1");
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(env);
    process->start(CALORIE_COUNTER_BIN,
                   QStringList{"--data-dir", dataDir, "--launch-hold-ms", "0"} + extra);
    return process;
}

struct Ran {
    int status;
    QString out, err;
};

// Waits for the program to end by itself, which it must do without a signal.
inline Ran ended(QProcess& process) {
    EXPECT_TRUE(process.waitForFinished(kDeadlineMs)) << "still running";
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit) << "killed by a signal";
    return {process.exitCode(), QString::fromLocal8Bit(process.readAllStandardOutput()),
            QString::fromLocal8Bit(process.readAllStandardError())};
}

inline Ran run(const std::filesystem::path& dataDir, const QStringList& arguments,
               bool display = false) {
    return ended(*startProgram(q(dataDir), arguments, display));
}

// A data folder as a finished set-up leaves it, with a plan of `days` records begun at start.
class DataFolder {
public:
    explicit DataFolder(Instant start, int days = 366) {
        std::filesystem::create_directories(path());
        std::filesystem::copy_file(FOOD_DB_PATH, database());
        std::filesystem::permissions(database(), std::filesystem::perms::owner_write,
                                     std::filesystem::perm_options::add);
        writePlan(database(), start, "1850", days);
        QSettings(q(path() / "defaults.ini"), QSettings::IniFormat).setValue("firstTime", "no");
    }
    std::filesystem::path path() const { return dir_.path() / "data"; }
    std::string database() const { return (path() / "food.db").string(); }
    // Room for the files a test brings or makes, outside the data folder.
    std::filesystem::path beside() const { return dir_.path(); }
    std::unique_ptr<QProcess> start(const QStringList& extra = {}) const {
        return startProgram(q(path()), extra);
    }

private:
    TempDir dir_;
};
