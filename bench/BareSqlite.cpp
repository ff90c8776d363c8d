#include "BareSqlite.h"

#include <sqlite3.h>

#include <cstdio>
#include <filesystem>

std::string freshDatabase(const char* fileName) {
    const std::filesystem::path path = std::filesystem::current_path() / fileName;
    std::filesystem::remove(path);
    std::filesystem::copy_file(FOOD_DB_PATH, path);
    std::filesystem::permissions(path, std::filesystem::perms::owner_write,
                                 std::filesystem::perm_options::add);
    return path.string();
}

void runBareStatement(const std::string& path, const char* sql) {
    sqlite3* db = nullptr;
    sqlite3_open(path.c_str(), &db);
    sqlite3_db_config(db, SQLITE_DBCONFIG_DQS_DML, 1, nullptr);
    sqlite3_stmt* stmt = nullptr;
    sqlite3_prepare_v2(db, sql, -1, &stmt, nullptr);
    sqlite3_step(stmt);
    sqlite3_finalize(stmt);
    sqlite3_close(db);
}

std::string dayInsertSql(const char* date, int id) {
    char sql[160];
    std::snprintf(sql, sizeof sql,
                  "INSERT INTO  dailyData (date,id,calorieConsumed,calorieBurned) "
                  "VALUES (\"%s\",\"%i\",0,0)",
                  date, id);
    return sql;
}
