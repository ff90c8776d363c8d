// The set-up's 366 day inserts through the store, against the same SQLite calls in a bare loop.
#include <benchmark/benchmark.h>
#include <string>

#include "BareSqlite.h"
#include "RatioReporter.h"
#include "store/AppState.h"
#include "store/CalorieStore.h"

namespace {

constexpr int kDays = 366;

void BM_BareSqliteInserts(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        const std::string path = freshDatabase("bench-food.db");
        state.ResumeTiming();
        for (int id = 0; id < kDays; ++id)
            runBareStatement(path, dayInsertSql("Sunday November 15", id).c_str());
    }
}

void BM_StoreInserts(benchmark::State& state) {
    AppState app;
    app.databaseName = "food.db";
    CalorieStore store(app);
    for (auto _ : state) {
        state.PauseTiming();
        app.databasePath = freshDatabase("bench-food.db");
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
