#pragma once
// The real application in a throwaway data folder: the launch sequence, the window rendered
// offscreen, and the ways a person (or a screen reader) reaches it: by accessible name, by
// clicks and keys on the real items, and by looking (screenshots).

#include <QImage>
#include <QPointF>
#include <QQuickWindow>
#include <QString>
#include <memory>
#include <optional>

#include "app/AppDelegate.h"
#include "support/Fixtures.h"

class QQuickItem;

// An item's centre in window coordinates, where a click or a tap lands.
QPointF centre(const QQuickItem* item);
// Waits until the status overlay has gone; false if it is still up after five seconds.
bool overlayGone();

struct HarnessOptions {
    bool pad = false;
    std::optional<QString> firstTime;  // the defaults' "firstTime" before launch; absent if empty
    QSize screen;                      // empty: the idiom's size
    QSize window;                      // empty: the screen's size
};

class AppHarness {
public:
    explicit AppHarness(HarnessOptions options = {});
    ~AppHarness();

    // Copies the shipped food.db into the data folder first, so a test can change it (startDate,
    // budget, day rows) before the launch; launch() then finds it in place. Without one, a
    // launch with firstTime "no" writes a plan starting now (budget 1850, 366 days).
    std::string prepareDatabase();
    // Starts the app afresh (a new process, as far as the shared state is concerned); may be
    // called again on the same data folder.
    void launch();

    AppDelegate& delegate() { return *delegate_; }
    Window* window() { return delegate_->window(); }
    QQuickWindow* quickWindow() { return delegate_->quickWindow(); }
    QString dataDir() const { return QString::fromStdString(dir_.path().string()); }
    std::string databasePath() const { return dir_.file("food.db"); }

    // Lets animations and deferred work run: returns once the window has drawn nothing new for a
    // few frame times, or after ms at the latest.
    void settle(int ms = 450);

    // The item whose accessible name is name (the first in tree order that is visible), or null.
    QQuickItem* findByName(const QString& name, int occurrence = 0);
    // Clicks the centre of the named item with a real mouse press and release; false if absent.
    bool click(const QString& name, int occurrence = 0);
    // Presses the named control through its accessibility action, as a screen reader does.
    bool press(const QString& name);
    // Real key events, on whatever has the keyboard.
    void type(const QString& text);
    void key(Qt::Key key, int times = 1);
    QQuickItem* focused() { return quickWindow()->activeFocusItem(); }
    // Presses Tab until an item of that accessible name has the keyboard; false if none gets it.
    bool tabTo(const QString& name);
    // Drags vertically from a window point by dy (a wheel turn).
    void drag(QPointF from, qreal dy);
    // Turns the mouse wheel over a window point by notches (positive: towards the user).
    void scroll(QPointF at, int notches);
    // Flicks the wheel now showing title by about rows (positive: on to later titles) and waits
    // until it has come to rest, as the choice is made only then; false if it is absent or still
    // turning after ten seconds.
    bool turn(const QString& title, int rows);

    // The item of the layout drawing screen, or null while it is not drawn.
    QQuickItem* layoutOf(const QObject* screen);

    QImage grab() { return quickWindow()->grabWindow(); }
    // Saves under the build folder's screenshots/; returns the path.
    QString saveScreenshot(const QString& name);

private:
    HarnessOptions options_;
    TempDir dir_;
    std::unique_ptr<AppDelegate> delegate_;
};

class NavigationController;
// The navigation controller of tab index (0 is Today) in the running app.
NavigationController* tab(int index);
