#pragma once
// A screen: its title, navigation item, root view and lifecycle. Its layout is a QML type of its
// feature's module, chosen by the screen's class and the idiom; the layout only places the outlets
// this class owns and wires controls to its actions, so screen code reads like the behaviour it
// has.

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>

#include "ui/NavigationItem.h"
#include "ui/Property.h"
#include "ui/View.h"

class NavigationController;
class TabBarController;

// The tab bar's entry for a screen.
class TabBarItem : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made with its screen")
    KIT_PROPERTY(QString, title, setTitle);
    KIT_PROPERTY(QString, imageName, setImageName);

public:
    explicit TabBarItem(QObject* parent = nullptr) : QObject(parent) {}
};

class ViewController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("screens are made by code")
    KIT_PROPERTY(QString, title, setTitle);
    // What a screen reader says as the screen comes up: its title, or for a screen without one
    // what it is about.
    Q_PROPERTY(QString spokenTitle READ spokenTitle NOTIFY titleChanged)
    // False for a screen that draws nothing of its own and puts what it shows over the window,
    // where that takes the keyboard itself.
    Q_PROPERTY(bool takesKeyboard READ takesKeyboard CONSTANT)
    Q_PROPERTY(NavigationItem* navigationItem READ navigationItem CONSTANT)
    Q_PROPERTY(View* view READ view CONSTANT)
    Q_PROPERTY(TabBarItem* tabBarItem READ tabBarItem CONSTANT)

public:
    explicit ViewController(QObject* parent = nullptr) : QObject(parent) {}

    QString spokenTitle() const { return title().isEmpty() ? untitledName() : title(); }
    virtual bool takesKeyboard() const { return true; }

    NavigationItem* navigationItem() { return &navigationItem_; }
    View* view() { return &view_; }
    TabBarItem* tabBarItem() { return &tabBarItem_; }

    // The navigation controller whose stack holds this screen, if any.
    NavigationController* navigationController() const { return navigationController_; }
    TabBarController* tabBarController() const;

    bool isViewLoaded() const { return viewLoaded_; }
    void loadViewIfNeeded();

    // Called by the containers; screens override the protected hooks below.
    void beginAppearance(bool appearing, bool animated);
    void endAppearance(bool appeared, bool animated);

protected:
    // Names a screen that shows no title.
    virtual QString untitledName() const { return {}; }
    virtual void viewDidLoad() {}
    virtual void viewWillAppear(bool /*animated*/) {}
    virtual void viewDidAppear(bool /*animated*/) {}
    virtual void viewWillDisappear(bool /*animated*/) {}
    virtual void viewDidDisappear(bool /*animated*/) {}

private:
    friend class NavigationController;
    NavigationItem navigationItem_;
    View view_;
    TabBarItem tabBarItem_;
    NavigationController* navigationController_ = nullptr;
    bool viewLoaded_ = false;
};
