#pragma once
// What a screen shows in its navigation bar: bar button items around the title.

#include <QtQml/qqmlregistration.h>
#include <QObject>

#include "ui/Button.h"
#include "ui/Property.h"

// A bar button item whose content is a custom view (the program's bar buttons are all custom).
class BarButtonItem : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by screen code")
    Q_PROPERTY(Button* customView READ customView CONSTANT)

public:
    // Takes ownership of the button.
    explicit BarButtonItem(Button* customView, QObject* parent = nullptr)
        : QObject(parent), customView_(customView) {
        customView_->setParent(this);
    }
    Button* customView() const { return customView_; }

private:
    Button* customView_;
};

class NavigationItem : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made with its screen")
    KIT_PROPERTY(BarButtonItem*, leftBarButtonItem, setLeftBarButtonItemRaw);
    KIT_PROPERTY(BarButtonItem*, rightBarButtonItem, setRightBarButtonItemRaw);
    KIT_PROPERTY(bool, hidesBackButton, setHidesBackButton);

public:
    explicit NavigationItem(QObject* parent = nullptr) : QObject(parent) {}
    // Take ownership of the item; the previous one goes.
    void setLeftBarButtonItem(BarButtonItem* item) { replace(m_leftBarButtonItem, item, true); }
    void setRightBarButtonItem(BarButtonItem* item) { replace(m_rightBarButtonItem, item, false); }

private:
    void replace(BarButtonItem* old, BarButtonItem* item, bool left) {
        if (item) item->setParent(this);
        left ? setLeftBarButtonItemRaw(item) : setRightBarButtonItemRaw(item);
        if (old && old != item) old->deleteLater();
    }
};
