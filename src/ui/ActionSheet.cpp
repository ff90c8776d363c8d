#include "ui/ActionSheet.h"

#include "ui/Application.h"
#include "ui/Window.h"

ActionSheet::ActionSheet(const QString& title, const QString& cancelButtonTitle,
                         const QStringList& otherButtonTitles, QObject* parent)
    : QObject(parent), title_(title), cancel_(cancelButtonTitle), others_(otherButtonTitles) {}

void ActionSheet::show() {
    visible_ = true;
    if (ApplicationDelegate* app = Application::delegate()) app->window()->present(this);
}

void ActionSheet::clickButtonAtIndex(int index) {
    visible_ = false;
    if (ApplicationDelegate* app = Application::delegate()) app->window()->dismiss(this);
    emit clickedButtonAtIndex(this, index);
}
