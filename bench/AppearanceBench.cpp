// A day of use on the dashboard, in the real window drawn offscreen: a thousand appearances of
// the Today view, each through the call a tap on its tab makes, and a thousand steps of the Log
// view, each through the call its button makes, every one timed with the frame it causes. Each
// appearance adds a budget line and two labels and each step replaces the bar, so the last ten
// must cost what the first ten do, each within a frame, and leave next to nothing behind.
// Frames are drawn by Qt Quick's software renderer, as on a machine without a GPU.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QQuickWindow>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <functional>

#include "OffscreenApp.h"
#include "RatioReporter.h"
#include "app/AppDelegate.h"
#include "dashboard/LogScreen.h"
#include "store/AppState.h"
#include "ui/TabBarController.h"

namespace {

constexpr int kTimes = 1000;
constexpr int kSample = 10;  // the first and the last this many are compared
constexpr int kToday = 0;
constexpr int kLog = 3;
constexpr int kMore = 4;
constexpr double kFrameMs = 1000.0 / 60;

long residentKb() {
    long pages = 0;
    long resident = 0;
    if (FILE* statm = std::fopen("/proc/self/statm", "r")) {
        if (std::fscanf(statm, "%ld %ld", &pages, &resident) != 2) resident = 0;
        std::fclose(statm);
    }
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

// Runs the event loop until the window has drawn and shown a frame, then handles what the frame
// set off (a picture grabbed during it goes into place).
bool awaitFrame(QQuickWindow* window) {
    QEventLoop loop;
    bool drawn = false;
    QObject::connect(window, &QQuickWindow::frameSwapped, &loop, [&] {
        drawn = true;
        loop.quit();
    });
    QTimer::singleShot(5000, &loop, &QEventLoop::quit);
    window->update();
    loop.exec();
    QCoreApplication::processEvents();
    return drawn;
}

// The app launched as after set-up, the Today tab on screen.
class LaunchedApp {
public:
    LaunchedApp() : delegate_(options()) {
        delegate_.didFinishLaunchingWithOptions();
        awaitFrame(window());
    }
    ~LaunchedApp() { AppState::shared() = AppState{}; }

    QQuickWindow* window() const { return delegate_.quickWindow(); }
    TabBarController* tabs() const { return AppState::shared().tabBarController; }

private:
    static LaunchOptions options() {
        ensureGuiApplication();
        AppState::shared() = AppState{};
        LaunchOptions launch;
        launch.screen = QSize(320, 568);
        launch.dataDir = QString::fromStdString(plannedDataFolder("calorie-bench-dashboard"));
        launch.launchHoldMs = 0;
        return launch;
    }

    AppDelegate delegate_;
};

// Times kTimes calls of act, each up to the frame it causes; between two calls, between (not
// timed, with its own frame). Reports the mean of the first and of the last kSample, and the
// resident memory added per call after the first kSample.
bool measureSeries(benchmark::State& state, QQuickWindow* window, const std::function<void()>& act,
                   const std::function<void()>& between) {
    using Clock = std::chrono::steady_clock;
    double firstMs = 0;
    double lastMs = 0;
    double totalMs = 0;
    long residentAfterFirst = 0;
    for (int i = 0; i < kTimes; ++i) {
        if (between) {
            between();
            if (!awaitFrame(window)) return false;
        }
        const Clock::time_point start = Clock::now();
        act();
        if (!awaitFrame(window)) return false;
        const double ms = std::chrono::duration<double, std::milli>(Clock::now() - start).count();
        totalMs += ms;
        if (i < kSample) firstMs += ms / kSample;
        if (i >= kTimes - kSample) lastMs += ms / kSample;
        if (i == kSample - 1) residentAfterFirst = residentKb();
    }
    state.SetIterationTime(totalMs / 1000);
    state.counters["first10_ms"] = firstMs;
    state.counters["last10_ms"] = lastMs;
    state.counters["kb_each"] = double(residentKb() - residentAfterFirst) / (kTimes - kSample);
    return true;
}

void BM_TodayAppearances(benchmark::State& state) {
    for (auto _ : state) {
        LaunchedApp app;
        TabBarController* tabs = app.tabs();
        if (!measureSeries(state, app.window(), [tabs] { tabs->setSelectedIndex(kToday); },
                           [tabs] { tabs->setSelectedIndex(kMore); }))
            state.SkipWithError("the window drew no frame");
    }
}

// Back and forth between today and the day before, from the Log tab: each step replaces the bar.
// Alone, or each after one more appearance of the Log view, so that the pile of budget lines
// the steps draw over grows.
void logSteps(benchmark::State& state, bool appearing) {
    for (auto _ : state) {
        LaunchedApp app;
        TabBarController* tabs = app.tabs();
        tabs->setSelectedIndex(kLog);
        awaitFrame(app.window());
        auto* log = qobject_cast<LogScreen*>(tabs->viewControllers()[kLog]->topViewController());
        bool back = true;
        const auto step = [log, &back] {
            back ? log->backBtn() : log->nextBtn();
            back = !back;
        };
        const auto appear = [tabs, &app] {
            tabs->setSelectedIndex(kMore);
            awaitFrame(app.window());
            tabs->setSelectedIndex(kLog);
        };
        if (!measureSeries(state, app.window(), step, appearing ? appear : std::function<void()>()))
            state.SkipWithError("the window drew no frame");
    }
}

void BM_LogSteps(benchmark::State& state) { logSteps(state, false); }
void BM_LogStepsOnAPile(benchmark::State& state) { logSteps(state, true); }

void configure(benchmark::internal::Benchmark* b) {
    b->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(1)->Repetitions(3)
        ->ReportAggregatesOnly(true);
}

BENCHMARK(BM_TodayAppearances)->Apply(configure);
BENCHMARK(BM_LogSteps)->Apply(configure);
BENCHMARK(BM_LogStepsOnAPile)->Apply(configure);

const bool registered = [] {
    for (const char* series :
         {"BM_TodayAppearances", "BM_LogSteps", "BM_LogStepsOnAPile"}) {
        compare({.measured = series, .floor = series, .target = 1.5,
                 .measuredCounter = "last10_ms", .floorCounter = "first10_ms"});
        limit({series, "first10_ms", kFrameMs, "ms"});
        limit({series, "last10_ms", kFrameMs, "ms"});
    }
    limit({"BM_TodayAppearances", "kb_each", 10, "KB"});
    limit({"BM_LogStepsOnAPile", "kb_each", 10, "KB"});
    limit({"BM_LogSteps", "kb_each", 1, "KB"});  // a replaced bar leaves nothing behind
    return true;
}();

}  // namespace
