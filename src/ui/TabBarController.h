#pragma once
// Tabs of navigation controllers; only the selected one is on screen.

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QList>
#include <QObject>

#include "ui/NavigationController.h"
#include "ui/Property.h"

class TabBarController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by screen code")
    Q_PROPERTY(QQmlListProperty<NavigationController> viewControllers READ viewControllerList NOTIFY
                   viewControllersChanged)
    Q_PROPERTY(
        int selectedIndex READ selectedIndex WRITE setSelectedIndex NOTIFY selectedIndexChanged)
    KIT_PROPERTY(QColor, tintColor, setTintColor);

public:
    explicit TabBarController(QObject* parent = nullptr) : QObject(parent) {}

    // Takes ownership of the controllers.
    void setViewControllers(const QList<NavigationController*>& controllers);
    const QList<NavigationController*>& viewControllers() const { return tabs_; }
    QQmlListProperty<NavigationController> viewControllerList() {
        return readOnlyList(this, tabs_);
    }

    int selectedIndex() const { return selectedIndex_; }
    void setSelectedIndex(int index);
    NavigationController* selectedViewController() const;

    // The window shows or hides the whole tab interface.
    void setVisible(bool visible);

signals:
    void viewControllersChanged();
    void selectedIndexChanged();

private:
    QList<NavigationController*> tabs_;
    int selectedIndex_ = 0;
    bool visible_ = false;
};
