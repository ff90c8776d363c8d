#pragma once
// The program's bar buttons: custom buttons with a red title, framed at the origin, as tall as the
// bar's content, whose image is not darkened when pressed, calling an action of the screen on
// touch-up-inside. The width comes from the screen.

#include "ui/Button.h"
#include "ui/NavigationItem.h"
#include "ui/Theme.h"

template <class Screen>
BarButtonItem* redBarButtonItem(const char* title, qreal width, Screen* screen,
                                void (Screen::*action)()) {
    auto* button = new Button;
    button->setTitle(title);
    button->setTitleColor(Theme::tint());
    button->setFrame(QRectF(0, 0, width, 38));
    button->setAdjustsImageWhenHighlighted(false);
    QObject::connect(button, &Button::touchUpInside, screen, action);
    return new BarButtonItem(button);
}
