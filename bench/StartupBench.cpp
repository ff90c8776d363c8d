// Process start to the first frame of the tab interface (the launch hold set to 0), and the
// resident memory then, against a bare Qt Quick window started the same way.
#include <benchmark/benchmark.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <ctime>
#include <filesystem>
#include <string>

#include "OffscreenApp.h"
#include "RatioReporter.h"

namespace {

namespace fs = std::filesystem;

fs::path binFolder() { return fs::read_symlink("/proc/self/exe").parent_path(); }

long long monotonicNanoseconds() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<long long>(now.tv_sec) * 1000000000LL + now.tv_nsec;
}

struct Startup {
    double seconds = -1;
    double residentMb = 0;
};

// Runs program with args, reading its report; the clock starts just before the fork.
Startup runOnce(const fs::path& program, const std::vector<std::string>& args) {
    int out[2];
    if (pipe(out) != 0) return {};
    const long long started = monotonicNanoseconds();
    const pid_t pid = fork();
    if (pid == 0) {
        dup2(out[1], STDOUT_FILENO);
        close(out[0]);
        if (FILE* quiet = std::fopen("/dev/null", "w")) dup2(fileno(quiet), STDERR_FILENO);
        std::vector<char*> argv{const_cast<char*>(program.c_str())};
        for (const auto& a : args) argv.push_back(const_cast<char*>(a.c_str()));
        argv.push_back(nullptr);
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
        execv(program.c_str(), argv.data());
        _exit(127);
    }
    close(out[1]);
    Startup result;
    if (FILE* report = fdopen(out[0], "r")) {
        char key[64];
        long long value = 0;
        while (std::fscanf(report, "%63s %lld", key, &value) == 2) {
            if (std::string(key) == "first-frame-monotonic-ns")
                result.seconds = double(value - started) / 1e9;
            if (std::string(key) == "resident-kb") result.residentMb = double(value) / 1024;
        }
        std::fclose(report);
    }
    int status = 0;
    waitpid(pid, &status, 0);
    return result;
}

void measure(benchmark::State& state, const fs::path& program,
             const std::vector<std::string>& args) {
    double resident = 0;
    for (auto _ : state) {
        const Startup run = runOnce(program, args);
        if (run.seconds < 0) {
            state.SkipWithError("the program reported no first frame");
            return;
        }
        state.SetIterationTime(run.seconds);
        resident = run.residentMb;
    }
    state.counters["resident_mb"] = resident;
}

void BM_QuickWindowStartup(benchmark::State& state) {
    measure(state, binFolder() / "quick-floor", {});
}

void BM_AppStartup(benchmark::State& state) {
    const fs::path data = plannedDataFolder("calorie-bench-startup");
    measure(state, binFolder() / "calorie-counter",
            {"--data-dir", data.string(), "--launch-hold-ms", "0", "--report-startup"});
}

void configure(benchmark::internal::Benchmark* b) {
    b->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(4)->Repetitions(5)
        ->ReportAggregatesOnly(true);
}

BENCHMARK(BM_QuickWindowStartup)->Apply(configure);
BENCHMARK(BM_AppStartup)->Apply(configure);

const bool registered = [] {
    // The targets are absolute; the ratio shows what the app adds to a bare Qt Quick window.
    compare({"BM_AppStartup", "BM_QuickWindowStartup", 0});
    limit({"BM_AppStartup", "", 300, "ms"});
    limit({"BM_AppStartup", "resident_mb", 120, "MB"});
    return true;
}();

}  // namespace
