#pragma once
// The screen as the program sees it. On a phone the window fills the screen; on a desktop the
// phone- or tablet-sized window stands in for it, so its size is what counts.

#include <QSizeF>

class QWindow;

namespace MainScreen {
// The window the program draws in: the focused one, else the first one shown; null if none.
QWindow* keyWindow();
// The size of the screen in points: the key window's, else the primary screen's.
QSizeF bounds();
}  // namespace MainScreen
