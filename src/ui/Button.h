#pragma once
// A button: a title and/or an image; code connects touchUpInside to an action.

#include <QtQml/qqmlregistration.h>
#include <QColor>

#include "ui/View.h"

class Button : public View {
    Q_OBJECT
    QML_ELEMENT
    KIT_PROPERTY(QString, title, setTitle);
    KIT_PROPERTY_INIT(QColor, titleColor, setTitleColor, QColor(0, 122, 255));
    KIT_PROPERTY(QString, imageName, setImageName);
    KIT_PROPERTY_INIT(bool, adjustsImageWhenHighlighted, setAdjustsImageWhenHighlighted, true);
    // What assistive technology reads for an image-only button ("Add").
    KIT_PROPERTY(QString, accessibleName, setAccessibleName);

public:
    explicit Button(QObject* parent = nullptr) : View(parent) {}
    // The user lifted a finger inside the button: renderers and tests call this.
    Q_INVOKABLE void sendTouchUpInside() { emit touchUpInside(this); }

signals:
    void touchUpInside(Button* sender);
};
