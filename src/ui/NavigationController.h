#pragma once
// A stack of screens with a navigation bar. It owns the screens on its stack; a popped screen is
// deleted once the renderer has finished animating it out (at once when nothing renders it).
// Screens get their appearance calls only while the controller itself is on screen.

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QList>
#include <QObject>

#include "ui/Property.h"
#include "ui/ViewController.h"

class TabBarController;

class NavigationController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by screen code")
    Q_PROPERTY(QQmlListProperty<ViewController> viewControllers READ viewControllerList NOTIFY
                   stackChanged)
    Q_PROPERTY(ViewController* topViewController READ topViewController NOTIFY stackChanged)
    Q_PROPERTY(TabBarItem* tabBarItem READ tabBarItem CONSTANT)
    KIT_PROPERTY(bool, navigationBarHidden, setNavigationBarHidden);
    KIT_PROPERTY(QColor, barTintColor, setTintColor);
    // Set by a renderer that animates pops and will call finishedRemoving().
    KIT_PROPERTY(bool, rendered, setRendered);

public:
    explicit NavigationController(ViewController* root, QObject* parent = nullptr);

    const QList<ViewController*>& viewControllers() const { return stack_; }
    QQmlListProperty<ViewController> viewControllerList() { return readOnlyList(this, stack_); }
    ViewController* topViewController() const { return stack_.isEmpty() ? nullptr : stack_.last(); }
    // A navigation controller in a tab bar presents its root screen's tab bar item.
    TabBarItem* tabBarItem() const { return stack_.first()->tabBarItem(); }
    // Its own item, as a controller that could itself be pushed has one. The bar shows the top
    // screen's item, never this one.
    NavigationItem* navigationItem() { return &navigationItem_; }

    void pushViewController(ViewController* controller, bool animated);
    Q_INVOKABLE void popViewController(bool animated);
    void popToRootViewController(bool animated);

    TabBarController* tabBarController() const { return tabBarController_; }
    void setTabBarController(TabBarController* tabs) { tabBarController_ = tabs; }

    bool isVisible() const { return visible_; }
    // The container (window or tab bar) shows or hides this controller.
    void setVisible(bool visible);

    // The renderer is done with a popped screen.
    Q_INVOKABLE void finishedRemoving(ViewController* controller);

signals:
    void stackChanged();
    // For the renderer: animate the top screen in or out. Sent before stackChanged, so that the
    // renderer can hand the keyboard to the new top screen before the old one stops taking input.
    void pushed(ViewController* controller, bool animated);
    void popped(int count, bool animated);

private:
    void popTo(qsizetype depth, bool animated);

    QList<ViewController*> stack_;
    TabBarController* tabBarController_ = nullptr;
    bool visible_ = false;
    NavigationItem navigationItem_;
};
