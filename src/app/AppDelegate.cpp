#include "app/AppDelegate.h"

#include <QtQml/qqmlextensionplugin.h>
#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QGuiApplication>
#include <QQuickWindow>
#include <QStandardPaths>
#include <QThread>
#include <QTimer>

#include "app/EndMessage.h"
#include "app/tabs/TabBar.h"
#include "overlay/StatusOverlay.h"
#include "setup/MeasureUnitScreen.h"
#include "store/AppState.h"
#include "store/DeadEnd.h"
#include "store/DevLog.h"
#include "store/PlanBackup.h"
#include "store/ProgramEnd.h"
#include "store/YourData.h"
#include "ui/Theme.h"

// The program's QML modules, linked in statically.
Q_IMPORT_QML_PLUGIN(CalorieCounter_KitPlugin)
Q_IMPORT_QML_PLUGIN(CalorieCounter_OverlayPlugin)
Q_IMPORT_QML_PLUGIN(CalorieCounter_FoodPlugin)
Q_IMPORT_QML_PLUGIN(CalorieCounter_ExercisePlugin)
Q_IMPORT_QML_PLUGIN(CalorieCounter_DashboardPlugin)
Q_IMPORT_QML_PLUGIN(CalorieCounter_SetupPlugin)
Q_IMPORT_QML_PLUGIN(CalorieCounter_TabsPlugin)
Q_IMPORT_QML_PLUGIN(CalorieCounter_AppPlugin)

namespace {

// Where the shipped food.db is: beside the program, or in an installed share folder.
QString shippedFolder() {
    const QString beside = QCoreApplication::applicationDirPath();
    if (QFile::exists(beside + "/food.db")) return beside;
    return beside + "/../share/calorie-counter";
}

}  // namespace

QString dataFolderFor(const LaunchOptions& options) {
    return options.dataDir.isEmpty()
               ? QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)
               : options.dataDir;
}

AppDelegate::AppDelegate(const LaunchOptions& options, QObject* parent)
    : QObject(parent), options_(options), store_(AppState::shared()) {
    Theme::setPad(options_.pad);
    Application::setDelegate(this);
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            [this](Qt::ApplicationState s) {
                if (s == Qt::ApplicationActive) applicationDidBecomeActive();
                if (s == Qt::ApplicationInactive) applicationWillResignActive();
                if (s == Qt::ApplicationSuspended) applicationDidEnterBackground();
            });
    connect(qGuiApp, &QCoreApplication::aboutToQuit, this, [this] { applicationWillTerminate(); });
    store_.setBeforeDailyUpdate([] { StatusOverlay::show(); });
    // A booking the file did not take is said to be lost, once the screens have moved on (Today
    // clears the overlay as it appears); the figures are read back from the file after every
    // booking, so they stay what it holds.
    store_.setWriteFailureHandler([](WriteFailure failure) {
        const QString text = QString("Not saved: %1").arg(writeFailureText(failure));
        QTimer::singleShot(0, qApp, [text] { StatusOverlay::showError(text); });
    });
    window_.setOverlay(&StatusOverlay::shared());
}

AppDelegate::~AppDelegate() {
    if (Application::delegate() == this) Application::setDelegate(nullptr);
}

bool AppDelegate::didFinishLaunchingWithOptions() {
    AppState& state = AppState::shared();

    // The window, with the launch image, held on purpose before anything else happens.
    showLaunchImage();
    QThread::msleep(static_cast<unsigned long>(options_.launchHoldMs));

    dataFolder_ = dataFolderFor(options_);
    QDir().mkpath(dataFolder_);
    state.databaseName = "food.db";
    state.databasePath = QDir(dataFolder_).filePath("food.db").toStdString();
    DEVLOG("%s", state.databasePath.c_str());
    const bool hadPlanFile = QFileInfo::exists(dataFolder_ + "/food.db");
    store_.checkAndCreateDatabase(shippedFolder().toStdString());

    defaults_ = std::make_unique<SettingsDefaults>(options_.dataDir);
    state.defaults = defaults_.get();

    state.foodNames.clear();
    state.foodCalories.clear();
    state.spareList.clear();
    state.dailyRows.clear();
    state.foodUnits.clear();

    state.isPad = options_.pad;

    const bool setUp = defaults_->stringForKey("firstTime") == "no" && planOpens(!hadPlanFile);
    ViewController* first = nullptr;
    if (setUp) {
        first = new TabBar;
        backUpOnceShown();
    } else {
        DEVLOG("firstTime");
        first = new MeasureUnitScreen;
    }
    window_.setRootViewController(new NavigationController(first));
    window_.setBackgroundPatternImage(state.isPad ? "bgiPad" : "bg");

    quickWindow_->setProperty("launching", false);
    return true;
}

bool AppDelegate::planOpens(bool fileWasMissing) {
    const YourData data(*defaults_, dataFolder_.toStdString());
    while (const std::optional<DeadEnd> end =
               findDeadEnd(dataFolder_.toStdString(), Clock::now(), fileWasMissing)) {
        fileWasMissing = false;  // a way out has put a file in place
        if (!offerWaysOut(*end, data)) {
            setProgramEndPresenter({});  // the person has read it in the window already
            endProgram(end->forTerminal());
        }
        quickWindow_->show();
        // A new plan starts with the set-up, on a fresh copy of the catalogue.
        if (defaults_->stringForKey("firstTime") != "no") {
            store_.checkAndCreateDatabase(shippedFolder().toStdString());
            return false;
        }
    }
    return true;
}

void AppDelegate::backUpOnceShown() {
    auto once = std::make_shared<QMetaObject::Connection>();
    *once = connect(quickWindow_, &QQuickWindow::frameSwapped, this, [this, once] {
        disconnect(*once);
        backup_ = std::jthread([folder = dataFolder_.toStdString(),
                                database = AppState::shared().databasePath,
                                firstTime = defaults_->stringForKey("firstTime").value_or("")] {
            const BackupResult done = backupDaily(folder, database, firstTime, Clock::now());
            if (!done.ok()) DEVLOG("automatic backup: %s", done.error.c_str());
        });
    });
}

void AppDelegate::showLaunchImage() {
    engine_.setInitialProperties({{"model", QVariant::fromValue(&window_)},
                                  {"launchImage", options_.pad ? "launchiPad" : "launch"}});
    // The root by module and type, as Qt 6.5's loadFromModule does; the type itself is compiled.
    engine_.loadData("import CalorieCounter.App\nAppWindow {}");
    quickWindow_ = qobject_cast<QQuickWindow*>(engine_.rootObjects().value(0));
    if (!quickWindow_) endProgram("the window's QML did not load");
    quickWindow_->setTitle("Calorie Counter");
    window_.setDesignSize(options_.screen);
    const auto viewport = [this] { window_.setViewport(quickWindow_->size()); };
    connect(quickWindow_, &QWindow::widthChanged, this, viewport);
    connect(quickWindow_, &QWindow::heightChanged, this, viewport);
    quickWindow_->resize(options_.window.isEmpty() ? options_.screen : options_.window);
    viewport();
    quickWindow_->show();
    // The launch image is drawn only to be held; without a hold the first screen replaces it.
    if (options_.launchHoldMs > 0) waitForFrame();
}

void AppDelegate::waitForFrame() {
    QEventLoop loop;
    connect(quickWindow_, &QQuickWindow::frameSwapped, &loop, &QEventLoop::quit);
    QTimer::singleShot(2000, &loop, &QEventLoop::quit);  // no frames on a platform that draws none
    loop.exec();
}
