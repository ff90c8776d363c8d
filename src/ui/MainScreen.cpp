#include "ui/MainScreen.h"

#include <QGuiApplication>
#include <QScreen>

#include "ui/Application.h"
#include "ui/Window.h"

QSizeF MainScreen::bounds() {
    if (ApplicationDelegate* app = Application::delegate()) return app->window()->canvasSize();
    if (const QScreen* screen = QGuiApplication::primaryScreen()) return screen->size();
    return {};
}
