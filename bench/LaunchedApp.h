#pragma once
// The app launched offscreen, phone-sized, on a data folder where set-up is done and today's row
// is in place, for timing what a person does up to the frame it causes.

#include <QString>
#include <atomic>
#include <functional>
#include <memory>

#include "PassTimes.h"

class AppDelegate;
class NavigationController;
class QQuickWindow;

namespace benchmark {
class State;
}

// Lets the event loop run for ms milliseconds (animations, deferred work).
void runEventsFor(int ms);

class LaunchedApp {
public:
    // folder: the data folder's name under the current one.
    explicit LaunchedApp(const char* folder);
    ~LaunchedApp();

    QQuickWindow* window();
    NavigationController* tab(int index);

    // The time from act() to the first frame on screen once ready() holds (at once without it).
    PassTimes::Clock::duration actAndDraw(const std::function<void()>& act,
                                          const std::function<bool()>& ready = {});
    // The time from pressing key to the next frame on screen.
    PassTimes::Clock::duration typeAndDraw(Qt::Key key, const QString& text);
    // Types the word but its last letter into the focused field, then that letter and a
    // backspace over and over, timing each letter to its frame.
    void keystrokes(benchmark::State& state, const QString& word);

private:
    std::unique_ptr<AppDelegate> delegate_;
    std::atomic<int> frames_{0};  // frames may be swapped on the render thread
};
