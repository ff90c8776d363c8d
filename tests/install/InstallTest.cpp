// The program as it is installed: this build put under a temporary prefix, the prefix moved
// elsewhere, the program started from there as a person's first start, and the desktop entry,
// icons, metainfo and man page as the validators and a desktop's menu find them.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <filesystem>

#include "support/Fixtures.h"
#include "ui/Theme.h"

namespace {

constexpr int kDeadlineMs = 120000;  // a sanitizer build on a busy machine starts slowly

struct Ran {
    int exitCode = -1;
    QString out;
    QString err;
};

Ran run(const QString& program, const QStringList& arguments) {
    QProcess process;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("QT_QPA_PLATFORM", "offscreen");
    env.insert("ASAN_OPTIONS", "detect_leaks=0:abort_on_error=1");
    process.setProcessEnvironment(env);
    process.start(program, arguments);
    const bool ended = process.waitForFinished(kDeadlineMs);
    EXPECT_TRUE(ended) << program.toStdString() << " still running";
    if (!ended) process.kill();
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromLocal8Bit(process.readAllStandardOutput()),
            QString::fromLocal8Bit(process.readAllStandardError())};
}

// The value of a key of a desktop entry's one group.
QString desktopValue(const QString& path, const QString& key) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) return {};
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n'))
        if (line.startsWith(key + '=')) return line.mid(key.size() + 1);
    return {};
}

class Installed : public testing::Test {
protected:
    Installed() {
        const QString staged = path("staged");
        const Ran install = run(CMAKE_COMMAND, {"--install", BUILD_DIR, "--prefix", staged});
        EXPECT_EQ(install.exitCode, 0) << install.err.toStdString();
        std::filesystem::rename(staged.toStdString(), prefix_.toStdString());
    }

    QString path(const QString& name) const {
        return QString::fromStdString(dir_.file(name.toStdString()));
    }
    QString installed(const QString& name) const { return prefix_ + '/' + name; }

    const QString appId = CC_APP_ID;

private:
    TempDir dir_;
    const QString prefix_ = path("moved");
};

TEST_F(Installed, StartsAsAFirstStartWithTheCatalogueItWasInstalledWith) {
    // Marked, so its copy is known to come from here and not from the build tree.
    const std::string shipped = installed("share/calorie-counter/food.db").toStdString();
    execSql(shipped, "PRAGMA user_version = 4242");

    const QString data = path("data");
    const QString shot = path("first.png");
    const Ran app = run(installed("bin/calorie-counter"), {"--data-dir", data, "--launch-hold-ms",
                                                           "0", "--screenshot", shot, "--log"});
    ASSERT_EQ(app.exitCode, 0) << app.err.toStdString();

    EXPECT_EQ(queryColumn((data + "/food.db").toStdString(), "PRAGMA user_version"),
              std::vector<std::string>{"4242"});
    // The launch chose set-up; the picture is the phone's window with set-up's red "Next" at the
    // right end of the navigation bar (the launch image has no red there).
    EXPECT_TRUE(app.err.split('\n').contains("firstTime")) << app.err.toStdString();
    const QImage picture(shot);
    ASSERT_EQ(picture.size(), QSize(320, 568));
    int red = 0;
    for (int y = 0; y < 44; ++y)
        for (int x = 240; x < 320; ++x) red += picture.pixelColor(x, y) == Theme::tint();
    EXPECT_GT(red, 20);
}

TEST_F(Installed, TheDesktopFindsItsEntryIconMetainfoAndManPage) {
    const QString entry = installed("share/applications/" + appId + ".desktop");
    const Ran entryCheck = run("desktop-file-validate", {entry});
    EXPECT_EQ(entryCheck.exitCode, 0);
    EXPECT_EQ(entryCheck.out + entryCheck.err, "");  // not even a hint
    // The metainfo, and the desktop entry it names as its launchable, as a software centre reads
    // them.
    const Ran tree = run("appstreamcli", {"validate-tree", "--no-net", installed("")});
    EXPECT_EQ(tree.exitCode, 0) << tree.out.toStdString() << tree.err.toStdString();
    // Its screenshots are the README's pictures: each URL names one that exists.
    QFile metainfo(installed("share/metainfo/" + appId + ".metainfo.xml"));
    ASSERT_TRUE(metainfo.open(QIODevice::ReadOnly));
    const QString xml = QString::fromUtf8(metainfo.readAll());
    int pictures = 0;
    for (const auto& image : QRegularExpression("<image>[^<]*/([^/<]+)</image>").globalMatch(xml)) {
        ++pictures;
        EXPECT_TRUE(QFile::exists(SOURCE_DIR "/docs/screenshots/" + image.captured(1)))
            << image.captured(1).toStdString();
    }
    EXPECT_GT(pictures, 0);

    EXPECT_TRUE(QFile::exists(installed("bin/" + desktopValue(entry, "Exec"))));
    const QString icon = desktopValue(entry, "Icon");
    EXPECT_EQ(icon, appId);
    EXPECT_TRUE(QFile::exists(installed("share/icons/hicolor/scalable/apps/" + icon + ".svg")));
    // Every PNG has its folder's size; 48x48 is the size every icon theme falls back to.
    const QDir hicolor(installed("share/icons/hicolor"));
    QStringList sizes = hicolor.entryList({"*x*"}, QDir::Dirs);
    EXPECT_TRUE(sizes.contains("48x48")) << sizes.join(' ').toStdString();
    for (const QString& size : sizes) {
        const QImage png(hicolor.filePath(size + "/apps/" + icon + ".png"));
        const QStringList side = size.split('x');
        EXPECT_EQ(png.size(), QSize(side[0].toInt(), side[1].toInt())) << size.toStdString();
    }

    // The man page is --help, headed by what --version says.
    const Ran man = run("gzip", {"-dc", installed("share/man/man1/calorie-counter.1.gz")});
    EXPECT_TRUE(man.out.contains("\"calorie-counter " CC_VERSION "\"")) << man.out.toStdString();
    EXPECT_TRUE(man.out.contains("\\-\\-data\\-dir")) << man.out.toStdString();
}

}  // namespace
