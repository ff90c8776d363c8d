// The exercise list in the real window drawn offscreen. Its view's load: the catalogue built and
// the first frame that shows the sectioned list, against an empty screen pushed the same way. A
// touch on the index bar to the first frame of the glide to its section, against a touch on "#",
// which only flashes. A keystroke in its search field to its frame, each reload handing the bar
// its letters again; the floor is the food benchmark's plain text field.
#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QMouseEvent>
#include <QQuickItem>
#include <QQuickWindow>
#include <functional>
#include <vector>

#include "LaunchedApp.h"
#include "RatioReporter.h"
#include "exercise/ExerciseScreen.h"
#include "store/AppState.h"
#include "ui/NavigationController.h"
#include "ui/TabBarController.h"

namespace {

constexpr int kLoads = 30;
constexpr int kTouches = 12;
constexpr int kKeystrokes = 30;

// Pushes a new screen on Today, unanimated, and times it to the first frame that shows it ready;
// pops it again untimed.
void loads(benchmark::State& state, const std::function<ViewController*()>& make,
           const std::function<bool(ViewController*)>& ready) {
    LaunchedApp app("bench-exercise");
    PassTimes times;
    for (auto _ : state) {
        ViewController* screen = nullptr;
        times.add(state,
                  app.actAndDraw([&] { app.tab(0)->pushViewController(screen = make(), false); },
                                 [&] { return ready(screen); }));
        app.tab(0)->popViewController(false);
        runEventsFor(30);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    times.report(state);
}

void BM_EmptyScreenLoadFloor(benchmark::State& state) {
    loads(
        state, [] { return new ViewController; }, [](ViewController*) { return true; });
}

void BM_ExerciseViewLoad(benchmark::State& state) {
    loads(
        state, [] { return new ExerciseScreen; },
        [](ViewController* screen) {
            return static_cast<ExerciseScreen*>(screen)->plainTableView()->rows()->rowCount() > 0;
        });
}

// The item that renders model.
QQuickItem* rendererOf(QQuickItem* item, QObject* model) {
    if (item->property("model").value<QObject*>() == model) return item;
    for (QQuickItem* child : item->childItems())
        if (QQuickItem* found = rendererOf(child, model)) return found;
    return nullptr;
}

void click(QQuickWindow* window, QPointF at) {
    for (QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, at, at, window->mapToGlobal(at.toPoint()), Qt::LeftButton,
                          type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(window, &event);
    }
}

// Touches the letters in turn (0 is "#"), each after the glide before it has ended.
void touches(benchmark::State& state, const std::vector<int>& letters) {
    LaunchedApp app("bench-exercise");
    auto* screen = new ExerciseScreen;
    app.tab(0)->pushViewController(screen, false);
    runEventsFor(300);
    QQuickItem* bar = rendererOf(app.window()->contentItem(), screen->indexBar());
    if (!bar) {
        state.SkipWithError("no index bar on screen");
        return;
    }
    int scrolls = 0;
    QObject::connect(screen->plainTableView(), &TableView::scrollRequested, [&] { ++scrolls; });
    PassTimes times;
    size_t next = 0;
    for (auto _ : state) {
        const int letter = letters[next++ % letters.size()];
        const QPointF at =
            bar->mapToScene(QPointF(bar->width() / 2, (letter + 0.5) * bar->height() / 27));
        times.add(state, app.actAndDraw([&] { click(app.window(), at); }));
        runEventsFor(600);
    }
    times.report(state);
    if (scrolls != (letters[0] == 0 ? 0 : int(next)))
        state.SkipWithError("the touches did not scroll as their letters say");
}

void BM_IndexTouchFrameFloor(benchmark::State& state) {
    touches(state, {0});
}
// W, A, M, C, S, H: each far from the one before.
void BM_IndexTouchFrame(benchmark::State& state) {
    touches(state, {23, 1, 13, 3, 19, 8});
}

void BM_ExerciseKeystrokeFrame_running(benchmark::State& state) {
    LaunchedApp app("bench-exercise");
    AppState::shared().tabBarController->setSelectedIndex(2);
    runEventsFor(300);
    auto* screen = qobject_cast<ExerciseScreen*>(app.tab(2)->topViewController());
    screen->searchBarOut()->becomeFirstResponder();
    app.keystrokes(state, "running");
    app.typeAndDraw(Qt::Key_G, "g");
    if (screen->plainTableView()->numberOfRowsInSection(0) != 4)
        state.SkipWithError("the keystrokes did not search");
}

void configure(benchmark::internal::Benchmark* b, int times) {
    b->Unit(benchmark::kMillisecond)
        ->UseManualTime()
        ->Iterations(times)
        ->Repetitions(5)
        ->ReportAggregatesOnly(true);
}

BENCHMARK(BM_EmptyScreenLoadFloor)->Apply([](auto* b) { configure(b, kLoads); });
BENCHMARK(BM_ExerciseViewLoad)->Apply([](auto* b) { configure(b, kLoads); });
BENCHMARK(BM_IndexTouchFrameFloor)->Apply([](auto* b) { configure(b, kTouches); });
BENCHMARK(BM_IndexTouchFrame)->Apply([](auto* b) { configure(b, kTouches); });
BENCHMARK(BM_ExerciseKeystrokeFrame_running)->Apply([](auto* b) { configure(b, kKeystrokes); });

const bool registered = [] {
    compare({"BM_ExerciseViewLoad", "BM_EmptyScreenLoadFloor", 0});
    compare({"BM_IndexTouchFrame", "BM_IndexTouchFrameFloor", 0});
    limit({"BM_IndexTouchFrame", "median_ms", 16.7, "ms"});
    compare({"BM_ExerciseKeystrokeFrame_running", "BM_KeystrokeFrameFloor", 0});
    limit({"BM_ExerciseKeystrokeFrame_running", "median_ms", 16.7, "ms"});
    return true;
}();

}  // namespace
