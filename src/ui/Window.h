#pragma once
// The application window as screens see it: a root navigation controller, views added on top
// of everything (the tab interface), and what is presented over it all (alerts, option sheets).

#include <QtQml/qqmlregistration.h>
#include <QList>
#include <QObject>

#include "ui/NavigationController.h"
#include "ui/ObjectListModel.h"
#include "ui/Property.h"

class TabBarController;

class Window : public QObject {
    Q_OBJECT
    // QtQuick's Window has the plain name.
    QML_NAMED_ELEMENT(WindowModel)
    QML_UNCREATABLE("the application delegate owns it")
    Q_PROPERTY(NavigationController* rootViewController READ rootViewController NOTIFY
                   rootViewControllerChanged)
    Q_PROPERTY(ObjectListModel* subviews READ subviewModel CONSTANT)
    Q_PROPERTY(ObjectListModel* presented READ presentedModel CONSTANT)
    // Tiled behind everything: "bg" on a phone, "bgiPad" on a pad.
    KIT_PROPERTY(QString, backgroundPatternImage, setBackgroundPatternImage);
    // Drawn over everything, presented modals included: the status overlay (not owned).
    KIT_PROPERTY(QObject*, overlay, setOverlay);

public:
    explicit Window(QObject* parent = nullptr) : QObject(parent) {}

    NavigationController* rootViewController() const { return root_; }
    // Takes ownership; the controller is shown at once.
    void setRootViewController(NavigationController* root);

    const QList<QObject*>& subviews() const { return subviews_.objects(); }
    ObjectListModel* subviewModel() { return &subviews_; }
    // Puts the tab interface over everything the window shows; takes ownership.
    void addSubview(TabBarController* tabs);

    // Not owned; the last presented is in front.
    const QList<QObject*>& presented() const { return presented_.objects(); }
    ObjectListModel* presentedModel() { return &presented_; }
    void present(QObject* modal);
    void dismiss(QObject* modal);

signals:
    void rootViewControllerChanged();

private:
    NavigationController* root_ = nullptr;
    ObjectListModel subviews_;
    ObjectListModel presented_;
};
