#pragma once
// The base of every outlet: a frame (empty: the layout places it), visibility, a tag, and the
// subviews and layers that code adds at run time (drawn on top of the layout's own content).

#include <QObject>
#include <QRectF>
#include <QtQml/qqmlregistration.h>

#include "ui/Property.h"

class View : public QObject {
    Q_OBJECT
    KIT_PROPERTY(QRectF, frame, setFrame);
    KIT_PROPERTY(bool, hidden, setHidden);
    KIT_PROPERTY(int, tag, setTag);
    Q_PROPERTY(QList<QObject*> subviews READ subviews NOTIFY subviewsChanged)
    // The class name; a renderer loads "Kit" + kind + ".qml" for views added by code.
    Q_PROPERTY(QString kind READ kind CONSTANT)

public:
    explicit View(QObject* parent = nullptr) : QObject(parent) {}

    QString kind() const { return QString::fromLatin1(metaObject()->className()); }
    QList<QObject*> subviews() const { return subviews_; }
    // Takes ownership; views and layers are drawn in the order they were added.
    void addSubview(QObject* view);
    // Removes and deletes: the view is gone for good, as a layer removed from its parent is.
    void removeSubview(QObject* view);

signals:
    void subviewsChanged();

private:
    QList<QObject*> subviews_;
};
