#include "ui/ObjectListModel.h"

int ObjectListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant ObjectListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    QObject* object = objects_[index.row()];
    switch (role) {
        case ObjectRole:
            return QVariant::fromValue(object);
        case KindRole:
            return QString::fromLatin1(object->metaObject()->className());
        default:
            return {};
    }
}

QHash<int, QByteArray> ObjectListModel::roles() {
    return {{ObjectRole, "modelData"}, {KindRole, "kind"}};
}

void ObjectListModel::append(QObject* object) {
    const int row = count();
    beginInsertRows({}, row, row);
    objects_.append(object);
    endInsertRows();
    emit countChanged();
}

bool ObjectListModel::remove(QObject* object) {
    // From the end: what is removed is mostly what was added last (a bar redrawn over the rest).
    const int row = int(objects_.lastIndexOf(object));
    if (row < 0) return false;
    beginRemoveRows({}, row, row);
    objects_.removeAt(row);
    endRemoveRows();
    emit countChanged();
    return true;
}

void ObjectListModel::clear() {
    if (objects_.isEmpty()) return;
    beginRemoveRows({}, 0, count() - 1);
    objects_.clear();
    endRemoveRows();
    emit countChanged();
}
