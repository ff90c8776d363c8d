#include "ui/AlertView.h"

#include "ui/Application.h"
#include "ui/Window.h"

AlertView::AlertView(const QString& title, const QString& message, const QString& cancelButtonTitle,
                     QObject* parent)
    : QObject(parent), title_(title), message_(message), buttons_{cancelButtonTitle} {}

int AlertView::addButtonWithTitle(const QString& title) {
    buttons_.append(title);
    return int(buttons_.size()) - 1;
}

void AlertView::show() {
    if (ApplicationDelegate* app = Application::delegate()) app->window()->present(this);
}

void AlertView::clickButtonAtIndex(int index) {
    if (ApplicationDelegate* app = Application::delegate()) app->window()->dismiss(this);
    emit clickedButtonAtIndex(index);
    deleteLater();
}
