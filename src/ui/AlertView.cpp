#include "ui/AlertView.h"

#include "ui/Application.h"
#include "ui/Window.h"

AlertView::AlertView(const QString& title, const QString& message, const QString& cancelButtonTitle,
                     QObject* parent)
    : QObject(parent), title_(title), message_(message), buttons_{cancelButtonTitle} {}

void AlertView::show() {
    if (ApplicationDelegate* app = Application::delegate()) app->window()->present(this);
}

void AlertView::clickButtonAtIndex(int index) {
    if (ApplicationDelegate* app = Application::delegate()) app->window()->dismiss(this);
    emit clickedButtonAtIndex(index);
    deleteLater();
}
