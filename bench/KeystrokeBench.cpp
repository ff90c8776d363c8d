// From a key event in the real search field to the next frame that shows the new rows, in the
// window drawn offscreen: "a" typed into the empty field (thousands of rows) and the "e" of
// "apple". The floor: a key event in a plain text field (the custom entry's) to its next frame.
#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QElapsedTimer>
#include <atomic>
#include <filesystem>
#include <fstream>
#include <memory>

#include "BareSqlite.h"
#include "OffscreenApp.h"
#include "PassTimes.h"
#include "RatioReporter.h"
#include "app/AppDelegate.h"
#include "food/CustomEntryScreen.h"
#include "food/SearchFoodScreen.h"
#include "store/AppState.h"
#include "ui/TabBarController.h"

namespace {

constexpr int kKeystrokes = 30;

void runEventsFor(int ms) {
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < ms) QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
}

// The app launched on a data folder where set-up is done and today's row is in place.
class LaunchedApp {
public:
    LaunchedApp() {
        ensureGuiApplication();
        AppState::shared() = AppState{};
        const std::filesystem::path folder = std::filesystem::current_path() / "bench-keystroke";
        std::filesystem::create_directories(folder);
        std::ofstream(folder / "defaults.ini") << "[General]\nfirstTime=no\n";
        runBareStatement(freshDatabase("bench-keystroke/food.db"), dayInsertSql("Today", 0).c_str());
        LaunchOptions options;
        options.dataDir = QString::fromStdString(folder.string());
        options.launchHoldMs = 0;
        options.screen = QSize(320, 568);
        delegate_ = std::make_unique<AppDelegate>(options);
        delegate_->didFinishLaunchingWithOptions();
        QObject::connect(window(), &QQuickWindow::frameSwapped, [this] { ++frames_; });
        runEventsFor(300);
    }
    ~LaunchedApp() {
        delegate_.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        AppState::shared() = AppState{};
    }

    QQuickWindow* window() { return delegate_->quickWindow(); }
    NavigationController* tab(int index) { return AppState::shared().tabBarController->viewControllers()[index]; }

    // The time from pressing key to the next frame on screen.
    PassTimes::Clock::duration typeAndDraw(Qt::Key key, const QString& text) {
        const int before = frames_;
        const auto started = PassTimes::Clock::now();
        for (QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier, text);
            QCoreApplication::sendEvent(window(), &event);
        }
        QElapsedTimer deadline;
        deadline.start();
        while (frames_ == before && deadline.elapsed() < 5000)
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 5);
        return PassTimes::Clock::now() - started;
    }

private:
    std::unique_ptr<AppDelegate> delegate_;
    std::atomic<int> frames_{0};  // frames may be swapped on the render thread
};

// Types the word's last letter into the field holding the rest, and takes it back, over and over.
void keystrokes(benchmark::State& state, LaunchedApp& app, const QString& word) {
    for (const QChar c : word.chopped(1)) app.typeAndDraw(Qt::Key(c.toUpper().unicode()), c);
    runEventsFor(400);  // the field's and the cancel button's animations settle
    const QChar last = word.back();
    PassTimes times;
    for (auto _ : state) {
        times.add(state, app.typeAndDraw(Qt::Key(last.toUpper().unicode()), last));
        app.typeAndDraw(Qt::Key_Backspace, "\b");
    }
    times.report(state);
}

void BM_KeystrokeFrameFloor(benchmark::State& state) {
    LaunchedApp app;
    app.tab(0)->pushViewController(new CustomEntryScreen(layoutFor("CustomEntryScreen")), false);
    runEventsFor(300);
    keystrokes(state, app, "1");
}

void searchKeystrokes(benchmark::State& state, const QString& word) {
    LaunchedApp app;
    AppState::shared().tabBarController->setSelectedIndex(1);
    runEventsFor(300);
    auto* search = qobject_cast<SearchFoodScreen*>(app.tab(1)->topViewController());
    search->searchBarOut()->becomeFirstResponder();
    keystrokes(state, app, word);
    // The keys reached the field and searched: the word once more finds rows.
    app.typeAndDraw(Qt::Key(word.back().toUpper().unicode()), word.back());
    if (search->searchBarOut()->text() != word || search->searchFoodTable()->numberOfRowsInSection(0) == 0)
        state.SkipWithError("the keystrokes did not search");
}

void BM_KeystrokeFrame_a(benchmark::State& state) { searchKeystrokes(state, "a"); }
void BM_KeystrokeFrame_apple(benchmark::State& state) { searchKeystrokes(state, "apple"); }

void configure(benchmark::internal::Benchmark* b) {
    b->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(kKeystrokes)->Repetitions(5)
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
