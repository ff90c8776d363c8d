// The More screen's "Your data" as a person uses it: each button by touch, keyboard or screen
// reader, the file dialog answered, and the plan's file on disk afterwards.
#include <gtest/gtest.h>

#include <QQuickItem>
#include <QQuickWindow>
#include <filesystem>
#include <functional>
#include <fstream>

#include "store/AppState.h"
#include "support/AppHarness.h"
#include "ui/NavigationController.h"
#include "ui/TabBarController.h"
#include "ui/AlertView.h"
#include "ui/Window.h"

namespace fs = std::filesystem;

namespace {

std::string today() {
    return DateFormatter("yyyy-MM-dd", DateLocale::posix).format(Clock::now());
}

class YourDataOnScreen : public testing::Test {
protected:
    // The dialogs suggest files in the person's Documents folder: here, one of the test's own.
    void SetUp() override {
        fs::create_directories(files.path() / "Documents");
        qputenv("HOME", QByteArray::fromStdString(files.path().string()));
        app.launch();
        ASSERT_TRUE(app.click("More"));
        app.settle();
    }

    // The section's file dialog, whether shown or not.
    QObject* dialog() {
        const ViewController* more =
            AppState::shared().tabBarController->selectedViewController()->topViewController();
        QQuickItem* layout = app.layoutOf(more);
        if (!layout) return nullptr;
        for (QObject* child : layout->findChildren<QObject*>())
            if (QByteArray(child->metaObject()->className()).startsWith("QQuickFileDialog"))
                return child;
        return nullptr;
    }

    // Answers the open dialog with file (by default the one it suggests), as a person would.
    void choose(const fs::path& file = {}) {
        QObject* shown = dialog();
        ASSERT_NE(shown, nullptr);
        ASSERT_TRUE(shown->property("visible").toBool());
        // Picked in the dialog itself: Qt's own, drawn in the window, where no platform has one.
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

    AlertView* alert() {
        const auto& shown = app.window()->presented();
        return shown.isEmpty() ? nullptr : qobject_cast<AlertView*>(shown.back());
    }

    // The alert's message, once its button is pressed by name.
    QString answer(const QString& button) {
        AlertView* shown = alert();
        if (!shown) return "no alert";
        const QString message = shown->message();
        EXPECT_TRUE(app.press(button)) << button.toStdString();
        app.settle();
        return message;
    }

    void TearDown() override { qputenv("HOME", home); }

    const QByteArray home = qgetenv("HOME");
    TempDir files;
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
    const QString suggested = dialog()->property("selectedFile").toUrl().toLocalFile();
    const fs::path csvFile = files.path() / "Documents" /
                             ("calorie-counter-" + today() + ".csv");
    EXPECT_EQ(suggested.toStdString(), csvFile.string());
    app.saveScreenshot("phone-your-data-dialog");
    choose();
    const QString exported = answer("OK");
    EXPECT_TRUE(exported.startsWith("Exported 366 days to ")) << exported.toStdString();
    std::ifstream csv(csvFile);
    std::string header;
    std::getline(csv, header);
    EXPECT_EQ(header, "day,date,label,consumed,burned,budget,remaining\r");

    // A dialog closed without a file leaves the button ready for the next press.
    ASSERT_TRUE(app.tabTo("Back up…"));
    app.key(Qt::Key_Space);
    app.settle();
    QMetaObject::invokeMethod(dialog(), "reject");
    app.settle();
    EXPECT_FALSE(dialog()->property("visible").toBool());
    EXPECT_EQ(alert(), nullptr);

    ASSERT_TRUE(app.press("Back up…"));
    app.settle();
    choose();
    EXPECT_TRUE(answer("OK").startsWith("Backed up to "));
    const fs::path backup = files.path() / "Documents" / ("calorie-counter-" + today() + ".db");
    EXPECT_EQ(dayInFile(backup.string(), 0), dayInFile(app.databasePath(), 0));
}

// Asked first; Cancel changes nothing; a wrong file is refused with nothing changed; a whole plan
// replaces the file, the replaced one kept in backups/.
TEST_F(YourDataOnScreen, ARestoreIsConfirmedAndChecked) {
    const fs::path backup = files.path() / "plan.db";
    fs::copy_file(app.databasePath(), backup);
    execSql(app.databasePath(), "UPDATE dailyData SET calorieConsumed = '777' WHERE id = 0");
    std::ofstream(files.path() / "notes.db") << "not a database at all, just some words";

    ASSERT_TRUE(app.press("Restore…"));
    app.settle();
    choose(backup);
    const QString asked = answer("Cancel");
    EXPECT_TRUE(asked.contains(QString::fromStdString(backup.string()))) << asked.toStdString();
    EXPECT_EQ(dayInFile(app.databasePath(), 0), "777 0");

    ASSERT_TRUE(app.press("Restore…"));
    app.settle();
    choose(files.path() / "notes.db");
    answer("Restore");
    EXPECT_TRUE(answer("OK").startsWith("Nothing was restored from "));
    EXPECT_EQ(dayInFile(app.databasePath(), 0), "777 0");

    ASSERT_TRUE(app.press("Restore…"));
    app.settle();
    choose(backup);
    answer("Restore");
    EXPECT_TRUE(answer("OK").contains("Calorie Counter closes now."));
    EXPECT_EQ(dayInFile(app.databasePath(), 0), "0 0");
    const fs::path kept = fs::path(app.databasePath()).parent_path() / "backups";
    int replaced = 0;
    for (const auto& entry : fs::directory_iterator(kept)) {
        if (!entry.path().filename().string().starts_with("food-before-restore-")) continue;
        ++replaced;
        EXPECT_EQ(dayInFile(entry.path().string(), 0), "777 0");
    }
    EXPECT_EQ(replaced, 1);
}

}  // namespace
