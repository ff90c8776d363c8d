#pragma once
// The application window as screens see it: a root navigation controller, views added on top
// of everything (the tab interface), and what is presented over it all (alerts, option sheets).

#include <QtQml/qqmlregistration.h>
#include <QList>
#include <QObject>
#include <QSizeF>

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
    // The screen the layouts are made for, in points, drawn into the window as large as its width
    // and height allow, centred across a wider window; any height the window has beyond that goes
    // to the screen, as on a taller device. canvasX is the canvas's left edge in the window.
    Q_PROPERTY(qreal canvasScale READ canvasScale NOTIFY canvasChanged)
    Q_PROPERTY(QSizeF canvasSize READ canvasSize NOTIFY canvasChanged)
    Q_PROPERTY(qreal canvasX READ canvasX NOTIFY canvasChanged)

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

    // The device screen in points, and the window's size as it changes.
    void setDesignSize(QSizeF points);
    void setViewport(QSizeF windowSize);
    qreal canvasScale() const { return scale_; }
    QSizeF canvasSize() const { return canvas_; }
    qreal canvasX() const { return canvasX_; }

signals:
    void rootViewControllerChanged();
    void canvasChanged();

private:
    NavigationController* root_ = nullptr;
    void layOutCanvas();

    ObjectListModel subviews_;
    ObjectListModel presented_;
    QSizeF design_{320, 568};
    QSizeF viewport_{320, 568};
    qreal scale_ = 1;
    QSizeF canvas_{320, 568};
    qreal canvasX_ = 0;
};
