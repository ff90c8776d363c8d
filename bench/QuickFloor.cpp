// The floor for the start-up benchmark: the least a Qt Quick program does to put a QML scene on
// screen, reporting its first frame the way the app does with --report-startup.
#include <QGuiApplication>
#include <QQuickView>
#include <QTimer>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <string>
#include <utility>

namespace {

long residentKilobytes() {
    std::ifstream status("/proc/self/status");
    for (std::string key; status >> key;) {
        if (key == "VmRSS:" && status >> key) return std::stol(key);
    }
    return -1;
}

}  // namespace

int main(int argc, char** argv) {
    QGuiApplication app(argc, argv);
    QQuickView view(QUrl("qrc:/QuickFloor.qml"));
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.resize(320, 568);
    bool reported = false;
    // Frames are swapped on the render thread; the report waits for the main thread, as the app's.
    QObject::connect(
        &view, &QQuickWindow::frameSwapped, &app,
        [&reported] {
            if (std::exchange(reported, true)) return;
            timespec now{};
            clock_gettime(CLOCK_MONOTONIC, &now);
            std::printf("first-frame-monotonic-ns %lld\nresident-kb %ld\n",
                        static_cast<long long>(now.tv_sec) * 1000000000LL + now.tv_nsec,
                        residentKilobytes());
            std::fflush(stdout);
            QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        },
        Qt::QueuedConnection);
    view.show();
    return app.exec();
}
