#pragma once
// The rows of an object list that a renderer draws as live items: all of them but the oldest
// ones it has retired, having flattened what their items drew into a picture. Rows added to or
// removed from the list after the retired ones pass through one by one. Should a retired row
// itself go, the picture no longer holds: every row comes back live and restarted() tells the
// renderer to drop its picture.

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <QPointer>

#include "ui/ObjectListModel.h"

class LiveRowsModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(ObjectListModel* source READ source WRITE setSource NOTIFY sourceChanged)

public:
    using QAbstractListModel::QAbstractListModel;

    ObjectListModel* source() const { return source_; }
    void setSource(ObjectListModel* source);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override { return ObjectListModel::roles(); }

    // The oldest count live rows leave.
    Q_INVOKABLE void retire(int count);

signals:
    void sourceChanged();
    void restarted();

private:
    // Called before the source changes rows below first; false when they are all retired.
    bool live(int first);
    // After the source has changed: ends what live() began.
    void finish(void (QAbstractItemModel::*end)());

    QPointer<ObjectListModel> source_;
    int retired_ = 0;
    bool restarting_ = false;
};
