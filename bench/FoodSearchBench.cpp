// One search pass per keystroke, as the search screen runs it (the pass and the four result
// lists filled, the table told), over the shipped catalogue and over 100,000 names (the
// catalogue repeated with suffixes), against a floor that scans one buffer of all the names,
// folded beforehand, with memmem.
#include <benchmark/benchmark.h>
#include <string.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "PassTimes.h"
#include "RatioReporter.h"
#include "food/SearchFoodScreen.h"
#include "store/AppState.h"
#include "store/CalorieStore.h"

namespace {

struct Catalogue {
    std::vector<std::string> names, calories, units;
    std::string folded;  // every name in lower case, each followed by a NUL
};

Catalogue fold(Catalogue c) {
    for (const std::string& name : c.names) {
        for (char ch : name) c.folded += char(ch >= 'A' && ch <= 'Z' ? ch + 32 : ch);
        c.folded += '\0';
    }
    return c;
}

const Catalogue& shipped() {
    static const Catalogue catalogue = [] {
        AppState state;
        state.databasePath = FOOD_DB_PATH;
        CalorieStore(state).readDataFromDatabaseFoodTable();
        return fold({state.foodNames, state.foodCalories, state.foodUnits, {}});
    }();
    return catalogue;
}

const Catalogue& large() {
    static const Catalogue catalogue = [] {
        const Catalogue& one = shipped();
        Catalogue all;
        for (int copy = 1; all.names.size() < 100000; ++copy) {
            for (size_t i = 0; i < one.names.size() && all.names.size() < 100000; ++i) {
                all.names.push_back(one.names[i] + " #" + std::to_string(copy));
                all.calories.push_back(one.calories[i]);
                all.units.push_back(one.units[i]);
            }
        }
        return fold(std::move(all));
    }();
    return catalogue;
}

void floorPass(benchmark::State& state, const Catalogue& catalogue, const std::string& query) {
    PassTimes times;
    const char* const end = catalogue.folded.data() + catalogue.folded.size();
    for (auto _ : state) {
        const auto started = PassTimes::Clock::now();
        size_t hits = 0;
        for (const char* from = catalogue.folded.data(); from < end;) {
            const auto* at =
                static_cast<const char*>(memmem(from, end - from, query.data(), query.size()));
            if (!at) break;
            ++hits;
            from = static_cast<const char*>(memchr(at, '\0', end - at)) + 1;
        }
        benchmark::DoNotOptimize(hits);
        times.add(state, PassTimes::Clock::now() - started);
    }
    times.report(state);
}

void screenPass(benchmark::State& state, const Catalogue& catalogue, const std::string& query) {
    // Other benchmarks of the process reset the shared state between repetitions.
    AppState& app = AppState::shared();
    app.foodNames = catalogue.names;
    app.foodCalories = catalogue.calories;
    app.foodUnits = catalogue.units;
    SearchFoodScreen screen;
    screen.loadViewIfNeeded();
    const QString text = QString::fromStdString(query);
    PassTimes times;
    for (auto _ : state) {
        const auto started = PassTimes::Clock::now();
        screen.searchBarTextDidChange(text);
        times.add(state, PassTimes::Clock::now() - started);
    }
    benchmark::DoNotOptimize(screen.searchresult.size());
    times.report(state);
}

void configure(benchmark::internal::Benchmark* b) {
    b->Unit(benchmark::kMicrosecond)
        ->UseManualTime()
        ->Iterations(300)
        ->Repetitions(5)
        ->ReportAggregatesOnly(true);
}

const bool registered = [] {
    for (const char* query : {"a", "ap", "app", "appl", "apple", "chicken breast", "zzz"}) {
        for (const bool big : {false, true}) {
            std::string name = std::string(big ? "100k:" : "") + query;
            std::replace(name.begin(), name.end(), ' ', '_');
            const std::string measured = "BM_FoodSearch:" + name,
                              floor = "BM_FoodSearchFloor:" + name;
            const Catalogue& (*catalogue)() = big ? large : shipped;
            configure(benchmark::RegisterBenchmark(
                floor.c_str(), [=](benchmark::State& s) { floorPass(s, catalogue(), query); }));
            configure(benchmark::RegisterBenchmark(
                measured.c_str(), [=](benchmark::State& s) { screenPass(s, catalogue(), query); }));
            if (big) {
                compare({measured, floor, 0});
                limit({measured, "median_ms", 5, "ms"});
            } else {
                compare({measured, floor, 3});
                limit({measured, "median_ms", 0.5, "ms"});
                limit({measured, "p99_ms", 2, "ms"});
            }
        }
    }
    return true;
}();

}  // namespace
