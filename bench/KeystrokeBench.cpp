// From a key event in the real search field to the next frame that shows the new rows, in the
// window drawn offscreen: "a" typed into the empty field (thousands of rows) and the "e" of
// "apple". The floor: a key event in a plain text field (the custom entry's) to its next frame.
#include <benchmark/benchmark.h>

#include "LaunchedApp.h"
#include "RatioReporter.h"
#include "food/CustomEntryScreen.h"
#include "food/SearchFoodScreen.h"
#include "store/AppState.h"
#include "ui/TabBarController.h"

namespace {

constexpr int kKeystrokes = 30;

void BM_KeystrokeFrameFloor(benchmark::State& state) {
    LaunchedApp app("bench-keystroke");
    app.tab(0)->pushViewController(new CustomEntryScreen, false);
    runEventsFor(300);
    app.keystrokes(state, "1");
}

void searchKeystrokes(benchmark::State& state, const QString& word) {
    LaunchedApp app("bench-keystroke");
    AppState::shared().tabBarController->setSelectedIndex(1);
    runEventsFor(300);
    auto* search = qobject_cast<SearchFoodScreen*>(app.tab(1)->topViewController());
    search->searchBarOut()->becomeFirstResponder();
    app.keystrokes(state, word);
    // The keys reached the field and searched: the word once more finds rows.
    app.typeAndDraw(Qt::Key(word.back().toUpper().unicode()), word.back());
    if (search->searchBarOut()->text() != word ||
        search->searchFoodTable()->numberOfRowsInSection(0) == 0)
        state.SkipWithError("the keystrokes did not search");
}

void BM_KeystrokeFrame_a(benchmark::State& state) {
    searchKeystrokes(state, "a");
}
void BM_KeystrokeFrame_apple(benchmark::State& state) {
    searchKeystrokes(state, "apple");
}

void configure(benchmark::internal::Benchmark* b) {
    b->Unit(benchmark::kMillisecond)
        ->UseManualTime()
        ->Iterations(kKeystrokes)
        ->Repetitions(5)
        ->ReportAggregatesOnly(true);
}

BENCHMARK(BM_KeystrokeFrameFloor)->Apply(configure);
BENCHMARK(BM_KeystrokeFrame_a)->Apply(configure);
BENCHMARK(BM_KeystrokeFrame_apple)->Apply(configure);

const bool registered = [] {
    for (const char* measured : {"BM_KeystrokeFrame_a", "BM_KeystrokeFrame_apple"}) {
        compare({measured, "BM_KeystrokeFrameFloor", 0});
        limit({measured, "median_ms", 16.7, "ms"});
    }
    return true;
}();

}  // namespace
