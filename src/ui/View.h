#pragma once
// The base of every outlet: a frame (empty: the layout places it), visibility, a tag, and the
// subviews and layers that code adds at run time (drawn on top of the layout's own content).

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QRectF>
#include <memory>

#include "ui/ObjectListModel.h"
#include "ui/Property.h"

class View : public QObject {
    Q_OBJECT
    QML_ELEMENT
    KIT_PROPERTY(QRectF, frame, setFrame);
    KIT_PROPERTY(bool, hidden, setHidden);
    KIT_PROPERTY(int, tag, setTag);
    // One renderer per subview, made or destroyed as each is added or removed.
    Q_PROPERTY(ObjectListModel* subviews READ subviewModel CONSTANT)

public:
    explicit View(QObject* parent = nullptr) : QObject(parent) {}

    const QList<QObject*>& subviews() const;
    // Made on first use: most views never hold subviews.
    ObjectListModel* subviewModel();
    // Takes ownership; views and layers are drawn in the order they were added.
    void addSubview(QObject* view);
    // Removes and deletes: the view is gone for good, as a layer removed from its parent is.
    void removeSubview(QObject* view);

private:
    // Not a child: it goes before the subviews do, so no renderer is left with a deleted view.
    std::unique_ptr<ObjectListModel> subviews_;
};
