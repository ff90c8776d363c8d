// The program as it is installed: this build put under a temporary prefix, the prefix moved
// elsewhere, the program started from there as a person's first start, and the desktop entry,
// icons, metainfo and man page as the validators and a desktop's menu find them.
#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QProcess>
#include <filesystem>

#include "support/Fixtures.h"

namespace {

struct Ran {
    int exitCode = -1;
    QString out;
};

// Standard output and error together: a validator's hints come on either.
Ran run(const QString& program, const QStringList& arguments) {
    QProcess process;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("QT_QPA_PLATFORM", "offscreen");
    env.insert("ASAN_OPTIONS", "detect_leaks=0:abort_on_error=1");
    process.setProcessEnvironment(env);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    // A sanitizer build on a busy machine starts slowly.
    const bool ended = process.waitForFinished(120000);
    EXPECT_TRUE(ended) << program.toStdString() << " still running";
    if (!ended) process.kill();
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromLocal8Bit(process.readAll())};
}

// The value of a key of a desktop entry's one group.
QString desktopValue(const QString& path, const QString& key) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) return {};
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n'))
        if (line.startsWith(key + '=')) return line.mid(key.size() + 1);
    return {};
}

}  // namespace

TEST(Installed, MovedPrefixStartsOnItsOwnCatalogueAndItsDesktopFilesValidate) {
    TempDir dir;
    const auto path = [&](const char* name) { return QString::fromStdString(dir.file(name)); };
    const QString prefix = path("moved");
    const Ran install = run(CMAKE_COMMAND, {"--install", BUILD_DIR, "--prefix", path("staged")});
    ASSERT_EQ(install.exitCode, 0) << install.out.toStdString();
    std::filesystem::rename(path("staged").toStdString(), prefix.toStdString());

    // The shipped catalogue, marked so its copy is known to come from the moved prefix and not
    // from the build tree; the log line says the launch chose set-up.
    execSql((prefix + "/share/calorie-counter/food.db").toStdString(), "PRAGMA user_version = 4242");
    const Ran app = run(prefix + "/bin/calorie-counter", {"--data-dir", path("data"), "--launch-hold-ms", "0",
                                                          "--screenshot", path("first.png"), "--log"});
    ASSERT_EQ(app.exitCode, 0) << app.out.toStdString();
    EXPECT_EQ(queryColumn(dir.file("data/food.db"), "PRAGMA user_version"), std::vector<std::string>{"4242"});
    EXPECT_TRUE(app.out.split('\n').contains("firstTime")) << app.out.toStdString();
    EXPECT_EQ(QImage(path("first.png")).size(), QSize(320, 568));

    const QString appId = CC_APP_ID;
    const QString entry = prefix + "/share/applications/" + appId + ".desktop";
    EXPECT_EQ(run("desktop-file-validate", {entry}).out, "");  // not even a hint
    // The metainfo, and the desktop entry it names, as a software centre reads them.
    const Ran tree = run("appstreamcli", {"validate-tree", "--no-net", prefix});
    EXPECT_EQ(tree.exitCode, 0) << tree.out.toStdString();
    EXPECT_TRUE(QFile::exists(prefix + "/bin/" + desktopValue(entry, "Exec")));
    EXPECT_EQ(desktopValue(entry, "Icon"), appId);
    EXPECT_TRUE(QFile::exists(prefix + "/share/icons/hicolor/scalable/apps/" + appId + ".svg"));
    const Ran man = run("gzip", {"-dc", prefix + "/share/man/man1/calorie-counter.1.gz"});
    EXPECT_TRUE(man.out.contains("\"calorie-counter " CC_VERSION "\"")) << man.out.toStdString();
}
