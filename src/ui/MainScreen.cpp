#include "ui/MainScreen.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

QWindow* MainScreen::keyWindow() {
    if (QWindow* focused = QGuiApplication::focusWindow()) return focused;
    for (QWindow* window : QGuiApplication::topLevelWindows()) {
        if (window->isVisible()) return window;
    }
    return nullptr;
}

QSizeF MainScreen::bounds() {
    if (const QWindow* window = keyWindow()) return window->size();
    if (const QScreen* screen = QGuiApplication::primaryScreen()) return screen->size();
    return {};
}
