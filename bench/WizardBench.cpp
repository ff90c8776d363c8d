// The set-up's last press: BirthdayScreen::selectDate from the press to the tab interface
// pushed, against the same 368 statements (2 profile updates, 366 day inserts) through bare
// SQLite calls, each run on a fresh copy of the shipped food.db in the same folder.
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <filesystem>
#include <memory>
#include <string>

#include "BareSqlite.h"
#include "OffscreenApp.h"
#include "RatioReporter.h"
#include "app/SettingsDefaults.h"
#include "setup/BirthdayScreen.h"
#include "store/AppState.h"
#include "store/CalorieStore.h"
#include "ui/Application.h"
#include "ui/Window.h"

namespace {

constexpr int kDays = 366;

void BM_SelectDateFloor(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        const std::string path = freshDatabase("bench-wizard-food.db");
        state.ResumeTiming();
        runBareStatement(path, "UPDATE profileData SET \"calorieBudget\"=\"1703\" WHERE id=2;");
        runBareStatement(
            path,
            "UPDATE profileData SET \"startingDate\"=\"2026-11-15 09:30:00 +0000\" WHERE id=2;");
        for (int id = 0; id < kDays; ++id)
            runBareStatement(path, dayInsertSql("Sunday November 15", id).c_str());
    }
}

// The application as the screen reaches it: the store, a window nothing draws, the defaults.
class BenchApp : public ApplicationDelegate {
public:
    explicit BenchApp(const QString& folder) : store_(AppState::shared()), defaults_(folder) {
        Application::setDelegate(this);
    }
    ~BenchApp() override { Application::setDelegate(nullptr); }
    CalorieStore& store() override { return store_; }
    Window* window() override { return &window_; }
    UserDefaults* standardUserDefaults() override { return &defaults_; }

private:
    CalorieStore store_;
    SettingsDefaults defaults_;
    Window window_;
};

void BM_SelectDate(benchmark::State& state) {
    ensureGuiApplication();
    const QString folder = QString::fromStdString(std::filesystem::current_path().string());
    for (auto _ : state) {
        state.PauseTiming();
        AppState& app = AppState::shared();
        app = AppState{};
        app.databaseName = "food.db";
        app.databasePath = freshDatabase("bench-wizard-food.db");
        app.measureUnit = "Metric";
        app.goalWeightValue = 70.0f;
        app.heightCm = 175;
        auto delegate = std::make_unique<BenchApp>(folder);
        auto* screen = new BirthdayScreen;
        delegate->window()->setRootViewController(new NavigationController(screen));
        state.ResumeTiming();

        screen->selectDate(nullptr);

        state.PauseTiming();
        delegate.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        state.ResumeTiming();
    }
}

void configure(benchmark::internal::Benchmark* b) {
    b->Unit(benchmark::kMillisecond)->Iterations(3)->Repetitions(5)->ReportAggregatesOnly(true);
}

BENCHMARK(BM_SelectDateFloor)->Apply(configure);
BENCHMARK(BM_SelectDate)->Apply(configure);

const bool registered = (compare({"BM_SelectDate", "BM_SelectDateFloor", 1.3}), true);

}  // namespace
