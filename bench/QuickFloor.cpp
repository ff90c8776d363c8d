// The floor for the start-up benchmark: the least a Qt Quick program does to show a window,
// reporting its first frame the same way the app does with --report-startup.
#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTimer>
#include <cstdio>
#include <ctime>

int main(int argc, char** argv) {
    QGuiApplication app(argc, argv);
    QQuickWindow window;
    window.resize(320, 568);
    window.setColor(Qt::white);
    window.show();
    QObject::connect(&window, &QQuickWindow::frameSwapped, &app, [] {
        timespec now{};
        clock_gettime(CLOCK_MONOTONIC, &now);
        std::printf("first-frame-monotonic-ns %lld\nresident-kb 0\n",
                    static_cast<long long>(now.tv_sec) * 1000000000LL + now.tv_nsec);
        std::fflush(stdout);
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    }, Qt::QueuedConnection);
    return app.exec();
}
