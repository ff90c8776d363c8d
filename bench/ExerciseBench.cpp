// The exercise list's search, run on every keystroke, and the catalogue it searches, built each
// time the list loads; each against a floor of the same work done bare in the same run.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <string>
#include <string_view>
#include <vector>

#include "RatioReporter.h"
#include "exercise/ExerciseCatalogue.h"

namespace {

// What a person types, one keystroke after another, and a text that matches nearly everything.
constexpr std::array<std::string_view, 8> kTexts = {"r",       "ru", "run",   "runn",
                                                    "running", "a",  "horse", "Darts"};

std::string lowered(std::string_view text) {
    std::string out(text);
    std::transform(out.begin(), out.end(), out.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return out;
}

// The least a pass can do: an ASCII lower-case find in names lowered beforehand, collecting the
// names and values of the hits.
void BM_BareExerciseSearch(benchmark::State& state) {
    const exercise::ExerciseCatalogue catalogue;
    std::vector<std::string> names;
    for (const std::string& name : catalogue.exerciseArray()) names.push_back(lowered(name));
    std::vector<std::string> hits, values;
    size_t next = 0;
    for (auto _ : state) {
        const std::string needle = lowered(kTexts[next++ % kTexts.size()]);
        hits.clear();
        values.clear();
        for (size_t i = 0; i < names.size(); ++i) {
            if (names[i].find(needle) == std::string::npos) continue;
            hits.push_back(catalogue.exerciseArray()[i]);
            values.push_back(catalogue.calorieArray()[i]);
        }
        benchmark::DoNotOptimize(hits.data());
    }
}

void BM_ExerciseSearch(benchmark::State& state) {
    const exercise::ExerciseCatalogue catalogue;
    exercise::SearchResults results;
    size_t next = 0;
    for (auto _ : state) {
        catalogue.search(kTexts[next++ % kTexts.size()], results);
        benchmark::DoNotOptimize(results.searchresultID.data());
    }
}

// The least a build can do: the same texts copied into lists of their own.
void BM_BareExerciseCatalogue(benchmark::State& state) {
    const exercise::ExerciseCatalogue source;
    for (auto _ : state) {
        std::vector<std::string> names(source.exerciseArray());
        std::vector<std::string> values(source.calorieArray());
        benchmark::DoNotOptimize(names.data());
        benchmark::DoNotOptimize(values.data());
    }
}

void BM_ExerciseCatalogue(benchmark::State& state) {
    for (auto _ : state) {
        const exercise::ExerciseCatalogue catalogue;
        benchmark::DoNotOptimize(catalogue.exerciseArray().data());
    }
}

void configure(benchmark::internal::Benchmark* b) {
    b->Unit(benchmark::kMicrosecond)->Repetitions(5)->ReportAggregatesOnly(true);
}

BENCHMARK(BM_BareExerciseSearch)->Apply(configure);
BENCHMARK(BM_ExerciseSearch)->Apply(configure);
BENCHMARK(BM_BareExerciseCatalogue)->Apply(configure);
BENCHMARK(BM_ExerciseCatalogue)->Apply(configure);

const bool registered = [] {
    // Case folding with ICU is what the build pays for over plain copies, once per list loaded.
    compare({"BM_ExerciseSearch", "BM_BareExerciseSearch", 3});
    compare({"BM_ExerciseCatalogue", "BM_BareExerciseCatalogue", 20});
    limit({"BM_ExerciseSearch", "", 0.05, "ms"});
    return true;
}();

}  // namespace
