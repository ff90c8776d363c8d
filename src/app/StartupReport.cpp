#include "app/StartupReport.h"

#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QQuickWindow>
#include <QTimer>
#include <cstdio>
#include <ctime>

namespace {

long residentKilobytes() {
    QFile status("/proc/self/status");
    if (!status.open(QIODevice::ReadOnly)) return -1;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:")) return line.mid(6).trimmed().split(' ').value(0).toLong();
    }
    return -1;
}

long long monotonicNanoseconds() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<long long>(now.tv_sec) * 1000000000LL + now.tv_nsec;
}

// Long enough for a push animation (0.3 s) to settle before the picture is taken.
constexpr int kIdleMs = 700;

}  // namespace

StartupReport::StartupReport(QQuickWindow* window, const LaunchOptions& options)
    : window_(window), options_(options) {
    if (options_.screenshot.isEmpty() && !options_.reportStartup) return;
    connect(window_, &QQuickWindow::frameSwapped, this, &StartupReport::firstFrame,
            Qt::QueuedConnection);
    window_->update();
}

void StartupReport::firstFrame() {
    if (seen_) return;
    seen_ = true;
    if (options_.reportStartup) {
        // CLOCK_MONOTONIC is shared with the benchmark that started us, which takes the difference.
        std::printf("first-frame-monotonic-ns %lld\nresident-kb %ld\n", monotonicNanoseconds(),
                    residentKilobytes());
        std::fflush(stdout);
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        return;
    }
    QTimer::singleShot(kIdleMs, this, &StartupReport::saveScreenshot);
}

void StartupReport::saveScreenshot() {
    const QImage image = window_->grabWindow();
    if (image.isNull() || !image.save(options_.screenshot)) {
        std::fprintf(stderr, "calorie-counter: could not save the screenshot to %s\n",
                     qPrintable(options_.screenshot));
        QCoreApplication::exit(1);
        return;
    }
    QCoreApplication::exit(0);
}
