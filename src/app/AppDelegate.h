#pragma once
// The application delegate: the launch sequence, and the owner of the window, the calorie store
// and the user defaults that every screen reaches through Application::delegate().

#include <QObject>
#include <QQmlApplicationEngine>
#include <memory>
#include <thread>

#include "app/CommandLine.h"
#include "app/SettingsDefaults.h"
#include "store/CalorieStore.h"
#include "ui/Application.h"
#include "ui/Window.h"

class QQuickWindow;

// The folder of the working food.db and the user defaults: --data-dir, else the app's data folder.
QString dataFolderFor(const LaunchOptions& options);

class AppDelegate : public QObject, public ApplicationDelegate {
    Q_OBJECT

public:
    explicit AppDelegate(const LaunchOptions& options, QObject* parent = nullptr);
    ~AppDelegate() override;

    bool didFinishLaunchingWithOptions();

    // The platform's life-cycle callbacks; the program has nothing to do in any of them.
    void applicationWillResignActive() {}
    void applicationDidEnterBackground() {}
    void applicationWillEnterForeground() {}
    void applicationDidBecomeActive() {}
    void applicationWillTerminate() {}

    CalorieStore& store() override { return store_; }
    Window* window() override { return &window_; }
    UserDefaults* standardUserDefaults() override { return defaults_.get(); }

    QQuickWindow* quickWindow() const { return quickWindow_; }
    QString dataFolder() const { return dataFolder_; }

private:
    void showLaunchImage();
    void waitForFrame();
    // Whether the plan opens; where it cannot, the start ends with its cause unless the person
    // takes a way out that lets it go on.
    bool planOpens(bool fileWasMissing);
    // The day's automatic backup, once the first screen is up, on a thread of its own.
    void backUpOnceShown();

    LaunchOptions options_;
    QString dataFolder_;
    Window window_;
    CalorieStore store_;
    std::unique_ptr<SettingsDefaults> defaults_;
    QQmlApplicationEngine engine_;
    QQuickWindow* quickWindow_ = nullptr;
    std::jthread backup_;  // joined as the program ends: a backup is never cut off halfway
};
