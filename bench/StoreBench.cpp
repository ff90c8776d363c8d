// The set-up's 366 day inserts through the store, against the same SQLite calls in a bare loop.
#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <cstdio>
#include <filesystem>
#include <string>

#include "RatioReporter.h"
#include "store/AppState.h"
#include "store/CalorieStore.h"

namespace {

constexpr int kDays = 366;

// A fresh copy of the shipped file in the build folder (the same disk for both loops).
std::string freshDatabase() {
    const std::filesystem::path path = std::filesystem::current_path() / "bench-food.db";
    std::filesystem::remove(path);
    std::filesystem::copy_file(FOOD_DB_PATH, path);
    std::filesystem::permissions(path, std::filesystem::perms::owner_write,
                                 std::filesystem::perm_options::add);
    return path.string();
}

void BM_BareSqliteInserts(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        const std::string path = freshDatabase();
        state.ResumeTiming();
        for (int id = 0; id < kDays; ++id) {
            char sql[160];
            std::snprintf(sql, sizeof sql,
                          "INSERT INTO  dailyData (date,id,calorieConsumed,calorieBurned) "
                          "VALUES (\"%s\",\"%i\",0,0)",
                          "Sunday November 15", id);
            sqlite3* db = nullptr;
            sqlite3_open(path.c_str(), &db);
            sqlite3_db_config(db, SQLITE_DBCONFIG_DQS_DML, 1, nullptr);
            sqlite3_stmt* stmt = nullptr;
            sqlite3_prepare_v2(db, sql, -1, &stmt, nullptr);
            sqlite3_step(stmt);
            sqlite3_finalize(stmt);
            sqlite3_close(db);
        }
    }
}

void BM_StoreInserts(benchmark::State& state) {
    AppState app;
    app.databaseName = "food.db";
    CalorieStore store(app);
    for (auto _ : state) {
        state.PauseTiming();
        app.databasePath = freshDatabase();
        state.ResumeTiming();
        for (int id = 0; id < kDays; ++id) store.insertDatabase("Sunday November 15", id);
    }
}

void configure(benchmark::internal::Benchmark* b) {
    b->Unit(benchmark::kMillisecond)->Iterations(3)->Repetitions(5)->ReportAggregatesOnly(true);
}

BENCHMARK(BM_BareSqliteInserts)->Apply(configure);
BENCHMARK(BM_StoreInserts)->Apply(configure);

const bool registered = (compare({"BM_StoreInserts", "BM_BareSqliteInserts", 1.25}), true);

}  // namespace
