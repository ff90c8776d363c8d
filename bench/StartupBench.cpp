// Process start to the first complete screen of the tabs (the launch hold set to 0), and the
// resident memory then, against a bare Qt Quick window started the same way. Warm starts keep
// each program's caches; cold ones begin with the QML disk cache and the font cache empty.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "OffscreenApp.h"
#include "RatioReporter.h"

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;
using Strings = std::vector<std::string>;

constexpr int kStarts = 17;  // per program and mode
constexpr auto kTimeout = std::chrono::seconds(20);

long long monotonicNanoseconds() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<long long>(now.tv_sec) * 1000000000LL + now.tv_nsec;
}

// Starts command (looked up in PATH) with env; stdout goes to out, stderr nowhere. Everything
// is built before the fork: the benchmark process may have Qt's threads running.
pid_t spawn(const Strings& command, const Strings& env, int out) {
    std::vector<char*> argv, envp;
    for (const auto& a : command) argv.push_back(const_cast<char*>(a.c_str()));
    for (const auto& e : env) envp.push_back(const_cast<char*>(e.c_str()));
    argv.push_back(nullptr);
    envp.push_back(nullptr);
    const int quiet = open("/dev/null", O_WRONLY | O_CLOEXEC);
    const pid_t pid = fork();
    if (pid == 0) {
        setpgid(0, 0);                     // a late start is killed with whatever it started
        prctl(PR_SET_PDEATHSIG, SIGKILL);  // nothing outlives a benchmark that crashed
        dup2(out, STDOUT_FILENO);
        dup2(quiet, STDERR_FILENO);
        execvpe(argv[0], argv.data(), envp.data());
        _exit(127);
    }
    close(quiet);
    return pid;
}

// What fd yields until it closes, until the first line ends when firstLine, or until deadline.
std::string readUntil(int fd, Clock::time_point deadline, bool firstLine) {
    std::string text;
    char buffer[256];
    for (pollfd p{fd, POLLIN, 0}; Clock::now() < deadline;) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
        if (poll(&p, 1, int(left.count())) <= 0) continue;
        const ssize_t n = read(fd, buffer, sizeof buffer);
        if (n <= 0) break;
        text.append(buffer, size_t(n));
        if (firstLine && text.find('\n') != std::string::npos) break;
    }
    return text;
}

Strings environment(const Strings& overrides) {
    Strings env;
    for (char** e = environ; *e; ++e) {
        const std::string entry = *e, key = entry.substr(0, entry.find('=') + 1);
        // The in-process benchmarks' frame pacing is no part of a start as people see it.
        const bool replaced = key == "QT_QPA_UPDATE_IDLE_TIME=" ||
                              std::any_of(overrides.begin(), overrides.end(),
                                          [&](const std::string& o) { return o.starts_with(key); });
        if (!replaced) env.push_back(entry);
    }
    env.insert(env.end(), overrides.begin(), overrides.end());
    return env;
}

// One private X server for every start of both programs, so each start makes a real window and
// GL context, as on a desktop, and no desktop's load lands on one side only. Without Xvfb both
// draw offscreen.
class Display {
public:
    Display() {
        int out[2];
        if (pipe2(out, O_CLOEXEC) != 0) return;
        // -displayfd: the server picks a free display and names it once it accepts clients.
        server_ =
            spawn({"Xvfb", "-displayfd", "1", "-screen", "0", "1280x1024x24", "-nolisten", "tcp"},
                  environment({}), out[1]);
        close(out[1]);
        const std::string number = readUntil(out[0], Clock::now() + std::chrono::seconds(10), true);
        close(out[0]);
        if (number.empty() || number.back() != '\n') {
            kill(-server_, SIGKILL);
            waitpid(server_, nullptr, 0);
            server_ = -1;
            return;
        }
        display_ = ":" + number;
        display_.pop_back();  // the newline
    }
    ~Display() {
        if (server_ <= 0) return;
        kill(server_, SIGTERM);
        waitpid(server_, nullptr, 0);
    }
    Strings env() const {
        if (display_.empty()) return {"QT_QPA_PLATFORM=offscreen"};
        return {"QT_QPA_PLATFORM=xcb", "DISPLAY=" + display_};
    }
    std::string label() const {
        return display_.empty() ? "offscreen: Xvfb did not start" : "xcb on Xvfb " + display_;
    }

private:
    pid_t server_ = -1;
    std::string display_;
};

struct Program {
    std::string name;
    Strings command;
    fs::path caches;  // XDG_CACHE_HOME (the QML disk cache) and fontconfig's cache
    Strings env = {};
    std::vector<double> ms, mb;

    void emptyCaches() const {
        fs::remove_all(caches);
        fs::create_directories(caches / "xdg");
        fs::create_directories(caches / "fontconfig");
        // The system's fonts and rules, but a cache of our own: fontconfig scans when it is empty.
        std::ofstream(caches / "fonts.conf")
            << "<?xml version=\"1.0\"?>\n<!DOCTYPE fontconfig SYSTEM \"fonts.dtd\">\n<fontconfig>\n"
               "  <dir>/usr/share/fonts</dir>\n  <dir>/usr/local/share/fonts</dir>\n"
               "  <include ignore_missing=\"yes\">/etc/fonts/conf.d</include>\n"
               "  <cachedir>"
            << (caches / "fontconfig").string() << "</cachedir>\n</fontconfig>\n";
    }

    // Starts the program once, recording its report; the error when it gave none.
    std::string start(const Display& display) {
        Strings env = display.env();
        env.insert(env.end(), this->env.begin(), this->env.end());
        env.push_back("XDG_CACHE_HOME=" + (caches / "xdg").string());
        env.push_back("FONTCONFIG_FILE=" + (caches / "fonts.conf").string());
        env = environment(env);
        int out[2];
        if (pipe2(out, O_CLOEXEC) != 0) return "no pipe for " + name;
        const auto deadline = Clock::now() + kTimeout;
        const long long started = monotonicNanoseconds();
        const pid_t pid = spawn(command, env, out[1]);
        close(out[1]);
        std::istringstream report(readUntil(out[0], deadline, false));
        close(out[0]);
        const bool late = Clock::now() >= deadline;
        if (late) kill(-pid, SIGKILL);
        int status = 0;
        waitpid(pid, &status, 0);
        double frameMs = -1, residentMb = -1;
        std::string key;
        for (long long value = 0; report >> key >> value;) {
            if (key == "first-frame-monotonic-ns") frameMs = double(value - started) / 1e6;
            if (key == "resident-kb") residentMb = double(value) / 1024;
        }
        if (frameMs >= 0 && residentMb >= 0) {
            ms.push_back(frameMs);
            mb.push_back(residentMb);
            return {};
        }
        if (late) return name + " reported no first frame within 20 s";
        return name + " ended without reporting its first frame and memory (exit status " +
               std::to_string(WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status)) +
               ")";
    }
};

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// The app and the floor start in turn, so a busy moment hits both alike. The time column is
// the app's mean; the ratios take the medians.
void measure(benchmark::State& state, bool cold) {
    static const Display display;  // shared by both modes, stopped at exit
    const fs::path bin = fs::read_symlink("/proc/self/exe").parent_path();
    const fs::path data = plannedDataFolder("calorie-bench-startup");
    const std::string mode = cold ? "cold-" : "warm-";
    const fs::path temp = fs::temp_directory_path();
    Program app{"calorie-counter",
                {(bin / "calorie-counter").string(), "--data-dir", data.string(),
                 "--launch-hold-ms", "0", "--report-startup"},
                temp / ("calorie-bench-" + mode + "app")};
    Program floor{"quick-floor",
                  {(bin / "quick-floor").string()},
                  temp / ("calorie-bench-" + mode + "floor")};
    // For information: the app made to draw with OpenGL, as it does where there is a GPU; here
    // that is Mesa's software rasteriser, which the app otherwise avoids (see main.cpp).
    Program appGl{"calorie-counter (OpenGL)",
                  app.command,
                  temp / ("calorie-bench-" + mode + "gl"),
                  {"QT_QUICK_BACKEND=rhi"}};
    for (Program* p : {&app, &floor, &appGl}) {
        p->emptyCaches();
        if (cold) continue;
        if (const std::string error = p->start(display); !error.empty()) {
            state.SkipWithError(error.c_str());
            return;
        }
        p->ms.clear();  // the start that fills the caches is not measured
        p->mb.clear();
    }
    int turn = 0;
    for (auto _ : state) {
        Program* order[] = {&floor, &app, &appGl};
        std::rotate(order, order + turn++ % 3, order + 3);  // none always starts on another's heels
        for (Program* p : order) {
            if (cold) p->emptyCaches();
            if (const std::string error = p->start(display); !error.empty()) {
                state.SkipWithError(error.c_str());
                return;
            }
        }
        state.SetIterationTime(app.ms.back() / 1e3);
    }
    state.counters["app_ms"] = median(app.ms);
    state.counters["floor_ms"] = median(floor.ms);
    state.counters["app_mb"] = median(app.mb);
    state.counters["floor_mb"] = median(floor.mb);
    state.counters["gl_ms"] = median(appGl.ms);
    state.counters["gl_mb"] = median(appGl.mb);
    state.SetLabel(display.label());
    fs::remove_all(app.caches);
    fs::remove_all(floor.caches);
    fs::remove_all(appGl.caches);
}

void BM_StartupWarm(benchmark::State& state) {
    measure(state, false);
}
void BM_StartupCold(benchmark::State& state) {
    measure(state, true);
}

// Each benchmark times its own starts, many of them, so it runs once.
void configure(benchmark::internal::Benchmark* b) {
    b->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(kStarts)->Repetitions(1);
}

BENCHMARK(BM_StartupWarm)->Apply(configure);
BENCHMARK(BM_StartupCold)->Apply(configure);

const bool registered = [] {
    // Cold starts also scan the fonts and compile the QML, which the floor does less of.
    compare({"BM_StartupWarm", "BM_StartupWarm", 1.5, "app_ms", "floor_ms"});
    compare({"BM_StartupCold", "BM_StartupCold", 1.6, "app_ms", "floor_ms"});
    compare({"BM_StartupWarm", "BM_StartupWarm", 1.15, "app_mb", "floor_mb"});
    compare({"BM_StartupCold", "BM_StartupCold", 1.15, "app_mb", "floor_mb"});
    compare({"BM_StartupWarm", "BM_StartupWarm", 0, "gl_ms", "floor_ms"});
    compare({"BM_StartupCold", "BM_StartupCold", 0, "gl_ms", "floor_ms"});
    compare({"BM_StartupWarm", "BM_StartupWarm", 0, "gl_mb", "floor_mb"});
    return true;
}();

}  // namespace
