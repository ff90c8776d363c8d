#pragma once
// The screen as the program sees it: the canvas the window draws the layouts on (see
// Window::canvasSize), as large as the device's screen on a phone and whatever a desktop window
// makes of it, in points.

#include <QSizeF>

namespace MainScreen {
// The canvas's size in points; before there is a window, the primary screen's size.
QSizeF bounds();
}  // namespace MainScreen
