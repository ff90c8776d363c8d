#pragma once
// A list of objects for QML's Repeater and ListView that announces every single insertion and
// removal, so a view makes or destroys one delegate per change and never rebuilds the rest: the
// cost of a change does not grow with what the list already holds. A delegate reaches its object
// as modelData and can be chosen by its class name (the role "kind").
//
// The list does not own its objects; whoever fills it does, and removes an object before it is
// deleted.

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <QList>

class ObjectListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by a view")
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role { ObjectRole = Qt::UserRole, KindRole };

    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override { return roles(); }
    static QHash<int, QByteArray> roles();

    int count() const { return int(objects_.size()); }
    const QList<QObject*>& objects() const { return objects_; }

    void append(QObject* object);
    // Returns false, announcing nothing, when the object is not in the list.
    bool remove(QObject* object);
    // Empties the list in one announcement: for a whole that is rebuilt, not for one change.
    void clear();

signals:
    void countChanged();

private:
    QList<QObject*> objects_;
};
