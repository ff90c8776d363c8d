// The More screen's "Your data" as a person uses it: each button by pointer, keyboard or screen
// reader, the file dialog answered, and the plan's file on disk afterwards.
#include <gtest/gtest.h>

#include <QQuickItem>
#include <QQuickWindow>
#include <filesystem>
#include <functional>
#include <fstream>

#include "support/AppHarness.h"
#include "ui/AlertView.h"
#include "ui/NavigationController.h"
#include "ui/Window.h"

namespace fs = std::filesystem;

namespace {

class YourDataOnScreen : public testing::Test {
protected:
    // The dialogs suggest files in the person's Documents folder: here, one of the test's own.
    void SetUp() override {
        fs::create_directories(documents);
        qputenv("HOME", QByteArray::fromStdString(files.path().string()));
        app.launch();
        ASSERT_TRUE(app.click("More"));
    }

    // The section's file dialog, whether shown or not.
    QObject* dialog() {
        QQuickItem* layout = app.layoutOf(tab(4)->topViewController());
        for (QObject* child : layout ? layout->findChildren<QObject*>() : QList<QObject*>())
            if (QByteArray(child->metaObject()->className()).startsWith("QQuickFileDialog"))
                return child;
        return nullptr;
    }

    // Answers the open dialog with file (by default the one it suggests), as a person would: picked
    // in the dialog itself, Qt's own, drawn in the window, where no platform has one.
    void choose(const fs::path& file = {}) {
        QObject* shown = dialog();
        ASSERT_TRUE(shown && shown->property("visible").toBool());
        if (!file.empty()) {
            QObject* picker = nullptr;
            std::function<void(QQuickItem*)> look = [&](QQuickItem* item) {
                for (QObject* owner = item; owner && !picker; owner = owner->parent())
                    if (owner->inherits("QQuickFileDialogImpl")) picker = owner;
                for (QQuickItem* child : item->childItems()) look(child);
            };
            look(app.quickWindow()->contentItem());
            ASSERT_NE(picker, nullptr);
            picker->setProperty("selectedFile", QUrl::fromLocalFile(QString::fromStdString(file)));
        }
        QMetaObject::invokeMethod(shown, "accept");
        app.settle();
    }

    // The message of the alert on top, once its button is pressed by name.
    QString answer(const QString& button) {
        const auto& shown = app.window()->presented();
        auto* alert = shown.isEmpty() ? nullptr : qobject_cast<AlertView*>(shown.back());
        if (!alert) return "no alert";
        const QString message = alert->message();
        EXPECT_TRUE(app.press(button)) << button.toStdString();
        app.settle();
        return message;
    }

    void TearDown() override { qputenv("HOME", home); }

    // The name the dialogs suggest for a file of today's.
    fs::path suggested(const char* extension) const {
        const DateFormatter day("yyyy-MM-dd", DateLocale::posix);
        return documents / ("calorie-counter-" + day.format(Clock::now()) + extension);
    }

    const QByteArray home = qgetenv("HOME");
    TempDir files;
    const fs::path documents = files.path() / "Documents";
    AppHarness app{{.firstTime = QString("no")}};
};

TEST_F(YourDataOnScreen, ExportAndBackUpByPointerKeyboardAndScreenReader) {
    // Below the texts: reaching it by Tab scrolls it into view, where the pointer finds it.
    ASSERT_TRUE(app.tabTo("Export as CSV…"));
    app.settle();
    app.saveScreenshot("phone-your-data");
    ASSERT_TRUE(app.click("Export as CSV…"));
    app.settle();
    ASSERT_NE(dialog(), nullptr);
    EXPECT_EQ(dialog()->property("selectedFile").toUrl().toLocalFile().toStdString(),
              suggested(".csv").string());
    choose();
    EXPECT_TRUE(answer("OK").startsWith("Exported 366 days to "));
    EXPECT_TRUE(fs::exists(suggested(".csv")));

    ASSERT_TRUE(app.tabTo("Back up…"));
    app.key(Qt::Key_Space);
    app.settle();
    choose();
    EXPECT_TRUE(answer("OK").startsWith("Backed up to "));
    EXPECT_EQ(dayInFile(suggested(".db").string(), 0), dayInFile(app.databasePath(), 0));
}

// Asked first; Cancel changes nothing; a wrong file is refused with nothing changed; a whole plan
// replaces the file (the replaced one kept in backups/, as the restore's own tests check).
TEST_F(YourDataOnScreen, ARestoreIsConfirmedAndChecked) {
    const fs::path backup = files.path() / "plan.db";
    fs::copy_file(app.databasePath(), backup);
    execSql(app.databasePath(), "UPDATE dailyData SET calorieConsumed = '777' WHERE id = 0");
    std::ofstream(files.path() / "notes.db") << "not a database at all, just some words";
    const auto restoreFrom = [&](const fs::path& file, const QString& button) {
        EXPECT_TRUE(app.press("Restore…"));
        app.settle();
        choose(file);
        return answer(button);
    };

    const QString asked = restoreFrom(backup, "Cancel");
    EXPECT_TRUE(asked.contains(QString::fromStdString(backup.string()))) << asked.toStdString();
    EXPECT_EQ(dayInFile(app.databasePath(), 0), "777 0");

    restoreFrom(files.path() / "notes.db", "Restore");
    EXPECT_TRUE(answer("OK").startsWith("Nothing was restored from "));
    EXPECT_EQ(dayInFile(app.databasePath(), 0), "777 0");

    restoreFrom(backup, "Restore");
    EXPECT_TRUE(answer("OK").contains("Calorie Counter closes now."));
    EXPECT_EQ(dayInFile(app.databasePath(), 0), "0 0");
}

}  // namespace
