#include "OffscreenApp.h"

#include <sqlite3.h>

#include <QGuiApplication>
#include <QQuickStyle>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <string>

void ensureGuiApplication() {
    if (QCoreApplication::instance()) return;
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    // A frame follows a change at once instead of after the platform's pause between updates
    // (5 ms where there is no vertical sync), so a frame's time is its work.
    setenv("QT_QPA_UPDATE_IDLE_TIME", "0", 1);
    static int argc = 1;
    static char name[] = "calorie-bench";
    static char* argv[] = {name, nullptr};
    // Never deleted: a static one would go among the exit handlers, after Qt's own process-wide
    // caches, and crash on its way out.
    new QGuiApplication(argc, argv);
    QQuickStyle::setStyle("Basic");
}

std::filesystem::path plannedDataFolder(const char* name) {
    namespace fs = std::filesystem;
    const fs::path folder = fs::temp_directory_path() / name;
    fs::remove_all(folder);
    fs::create_directories(folder);
    std::ofstream(folder / "defaults.ini") << "[General]\nfirstTime=no\n";
    const fs::path db = folder / "food.db";
    fs::copy_file(FOOD_DB_PATH, db);
    fs::permissions(db, fs::perms::owner_write, fs::perm_options::add);
    sqlite3* handle = nullptr;
    sqlite3_open(db.c_str(), &handle);
    const time_t start = time(nullptr) - 10 * 86400;
    char when[64];
    strftime(when, sizeof when, "%Y-%m-%d %H:%M:%S +0000", gmtime(&start));
    std::string sql = "BEGIN; UPDATE profileData SET calorieBudget='1850', startingDate='" +
                      std::string(when) + "' WHERE id=2;";
    for (int day = 0; day < 366; ++day)
        sql += "INSERT INTO dailyData VALUES (" + std::to_string(day) + ", 'Day', 1240, 220);";
    sqlite3_exec(handle, (sql + "COMMIT;").c_str(), nullptr, nullptr, nullptr);
    sqlite3_close(handle);
    return folder;
}
