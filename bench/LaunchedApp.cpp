#include "LaunchedApp.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QQuickWindow>
#include <filesystem>
#include <fstream>

#include "BareSqlite.h"
#include "OffscreenApp.h"
#include "app/AppDelegate.h"
#include "store/AppState.h"
#include "ui/TabBarController.h"

void runEventsFor(int ms) {
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < ms) QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
}

LaunchedApp::LaunchedApp(const char* folderName) {
    ensureGuiApplication();
    AppState::shared() = AppState{};
    const std::filesystem::path folder = std::filesystem::current_path() / folderName;
    std::filesystem::create_directories(folder);
    std::ofstream(folder / "defaults.ini") << "[General]\nfirstTime=no\n";
    runBareStatement(freshDatabase((std::string(folderName) + "/food.db").c_str()),
                     dayInsertSql("Today", 0).c_str());
    LaunchOptions options;
    options.dataDir = QString::fromStdString(folder.string());
    options.launchHoldMs = 0;
    options.screen = QSize(320, 568);
    delegate_ = std::make_unique<AppDelegate>(options);
    delegate_->didFinishLaunchingWithOptions();
    QObject::connect(window(), &QQuickWindow::frameSwapped, [this] { ++frames_; });
    runEventsFor(300);
}

LaunchedApp::~LaunchedApp() {
    delegate_.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    AppState::shared() = AppState{};
}

QQuickWindow* LaunchedApp::window() { return delegate_->quickWindow(); }

NavigationController* LaunchedApp::tab(int index) {
    return AppState::shared().tabBarController->viewControllers()[index];
}

PassTimes::Clock::duration LaunchedApp::actAndDraw(const std::function<void()>& act,
                                                   const std::function<bool()>& ready) {
    int before = frames_;
    const auto started = PassTimes::Clock::now();
    act();
    QElapsedTimer deadline;
    deadline.start();
    if (ready) {
        while (!ready() && deadline.elapsed() < 5000) {
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 5);
        }
        before = frames_;  // a frame drawn before it was ready does not count
    }
    while (frames_ == before && deadline.elapsed() < 5000)
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 5);
    return PassTimes::Clock::now() - started;
}

PassTimes::Clock::duration LaunchedApp::typeAndDraw(Qt::Key key, const QString& text) {
    return actAndDraw([&] {
        for (QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier, text);
            QCoreApplication::sendEvent(window(), &event);
        }
    });
}

void LaunchedApp::keystrokes(benchmark::State& state, const QString& word) {
    for (const QChar c : word.chopped(1)) typeAndDraw(Qt::Key(c.toUpper().unicode()), c);
    runEventsFor(400);  // the field's and the cancel button's animations settle
    const QChar last = word.back();
    PassTimes times;
    for (auto _ : state) {
        times.add(state, typeAndDraw(Qt::Key(last.toUpper().unicode()), last));
        typeAndDraw(Qt::Key_Backspace, "\b");
    }
    times.report(state);
}
