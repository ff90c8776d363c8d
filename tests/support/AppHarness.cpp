#include "support/AppHarness.h"

#include <QAccessible>
#include <QDeadlineTimer>
#include <QDir>
#include <QElapsedTimer>
#include <QQuickItem>
#include <QSettings>
#include <QTest>
#include <QWheelEvent>
#include <filesystem>

#include "overlay/StatusOverlay.h"
#include "store/AppState.h"
#include "ui/TabBarController.h"

namespace {

// Depth-first over the accessibility tree, the way assistive technology sees the window. The
// screens themselves are named too (by their titles); what is looked for is what is on them.
QQuickItem* findAccessible(QAccessibleInterface* node, const QString& name, int& skip) {
    if (!node) return nullptr;
    auto* item = qobject_cast<QQuickItem*>(node->object());
    if (node->text(QAccessible::Name) == name && !node->state().invisible &&
        node->role() != QAccessible::Pane && item && item->isVisible() && skip-- == 0)
        return item;
    for (int i = 0; i < node->childCount(); ++i)
        if (QQuickItem* found = findAccessible(node->child(i), name, skip)) return found;
    return nullptr;
}

}  // namespace

AppHarness::AppHarness(HarnessOptions options) : options_(options) {
    AppState::shared() = AppState{};
    if (options_.firstTime)
        QSettings(dataDir() + "/defaults.ini", QSettings::IniFormat)
            .setValue("firstTime", *options_.firstTime);
}

AppHarness::~AppHarness() {
    delegate_.reset();
    AppState::shared() = AppState{};
}

std::string AppHarness::prepareDatabase() {
    namespace fs = std::filesystem;
    fs::copy_file(FOOD_DB_PATH, databasePath(), fs::copy_options::overwrite_existing);
    fs::permissions(databasePath(), fs::perms::owner_write, fs::perm_options::add);
    return databasePath();
}

void AppHarness::launch() {
    delegate_.reset();
    AppState::shared() = AppState{};
    // Straight into the tabs means set-up is done, and the Today tab needs today's row: unless
    // the test put a database in place itself, it gets the plan set-up would have made today.
    if (options_.firstTime == QString("no") && !std::filesystem::exists(databasePath()))
        writePlan(prepareDatabase(), Clock::now(), "1850", 366);
    const QSize idiom = options_.pad ? QSize(768, 1024) : QSize(320, 568);
    delegate_ = std::make_unique<AppDelegate>(LaunchOptions{
        .pad = options_.pad,
        .screen = options_.screen.isEmpty() ? idiom : options_.screen,
        .window = options_.window,
        .dataDir = dataDir(),
        .launchHoldMs = 0,
    });
    delegate_->didFinishLaunchingWithOptions();
    settle();
}

void AppHarness::settle(int ms) {
    // Whatever moves keeps the window drawing: it has settled once no frame has come for a few
    // frame times, or after ms at the latest.
    constexpr int kQuietMs = 80;
    QElapsedTimer quiet;
    quiet.start();
    const QMetaObject::Connection frames =
        QObject::connect(quickWindow(), &QQuickWindow::frameSwapped, [&quiet] { quiet.restart(); });
    const QDeadlineTimer deadline(std::max(ms, 0));
    QTest::qWait(std::min(ms, 20));
    while (quiet.elapsed() < kQuietMs && !deadline.hasExpired()) QTest::qWait(10);
    QObject::disconnect(frames);
}

QQuickItem* AppHarness::layoutOf(const QObject* screen) {
    // The layout is the item whose screen is this one, apart from the page and the host that
    // hold it, which are no layouts.
    QList<QQuickItem*> items{quickWindow()->contentItem()};
    while (!items.isEmpty()) {
        QQuickItem* item = items.takeFirst();
        const QString type = item->metaObject()->className();
        if (type.contains("Layout_") && !type.startsWith("ScreenLayout") &&
            item->property("screen").value<QObject*>() == screen)
            return item;
        items += item->childItems();
    }
    return nullptr;
}

QQuickItem* AppHarness::findByName(const QString& name, int occurrence) {
    return findAccessible(QAccessible::queryAccessibleInterface(quickWindow()), name, occurrence);
}

QPointF centre(const QQuickItem* item) {
    return item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
}

bool overlayGone() {
    return QTest::qWaitFor([] { return !StatusOverlay::shared().isShown(); }, 5000);
}

bool AppHarness::click(const QString& name, int occurrence) {
    QQuickItem* item = findByName(name, occurrence);
    if (!item) return false;
    QTest::mouseClick(quickWindow(), Qt::LeftButton, Qt::NoModifier, centre(item).toPoint());
    settle();
    return true;
}

bool AppHarness::press(const QString& name) {
    QQuickItem* item = findByName(name);
    QAccessibleInterface* node = item ? QAccessible::queryAccessibleInterface(item) : nullptr;
    if (!node || !node->actionInterface()) return false;
    node->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    settle();
    return true;
}

void AppHarness::type(const QString& text) {
    for (const QChar c : text) QTest::keyClick(quickWindow(), c.toLatin1());
    settle(50);
}

void AppHarness::key(Qt::Key key, int times) {
    for (int i = 0; i < times; ++i) QTest::keyClick(quickWindow(), key);
    settle(50);
}

bool AppHarness::tabTo(const QString& name) {
    // A control, not the screen around it, which bears the screen's title.
    const auto named = [&] {
        QAccessibleInterface* node =
            focused() ? QAccessible::queryAccessibleInterface(focused()) : nullptr;
        return node && node->text(QAccessible::Name) == name && node->role() != QAccessible::Pane;
    };
    // Once round everything a screen shows, and a little more.
    for (int presses = 0; presses < 40 && !named(); ++presses)
        QTest::keyClick(quickWindow(), Qt::Key_Tab);
    return named();
}

void AppHarness::drag(QPointF from, qreal dy) {
    QQuickWindow* window = quickWindow();
    const QPoint start = from.toPoint();
    const int steps = 12;
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, start);
    for (int i = 1; i <= steps; ++i)
        QTest::mouseMove(window, start + QPoint(0, int(dy * i / steps)), 16);
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, start + QPoint(0, int(dy)), 16);
    settle(900);
}

void AppHarness::scroll(QPointF at, int notches) {
    QWheelEvent event(at, quickWindow()->mapToGlobal(at), QPoint(), QPoint(0, -120 * notches),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(quickWindow(), &event);
    settle(50);
}

bool AppHarness::turn(const QString& title, int rows) {
    QQuickItem* wheel = findByName(title);
    if (!wheel) return false;
    drag(wheel->mapToScene(QPointF(wheel->width() / 2, wheel->height() / 2)),
         -rows * wheel->height() / 5);
    return QTest::qWaitFor([wheel] { return !wheel->property("moving").toBool(); }, 10000);
}

QString AppHarness::saveScreenshot(const QString& name) {
    const QString folder = QDir::currentPath() + "/screenshots";
    QDir().mkpath(folder);
    const QString path = folder + "/" + name + ".png";
    grab().save(path);
    return path;
}

NavigationController* tab(int index) {
    return AppState::shared().tabBarController->viewControllers()[index];
}
