#pragma once
// The program's bar buttons: custom buttons with a red title, as tall as the bar's content, whose
// image is not darkened when pressed. The width comes from the screen.

#include "ui/Button.h"
#include "ui/Colors.h"

inline Button* barButton(const QString& title, qreal width) {
    auto* button = new Button;
    button->setTitle(title);
    button->setTitleColor(redColor());
    button->setFrame(QRectF(0, 0, width, 38));
    button->setAdjustsImageWhenHighlighted(false);
    return button;
}
