#include "ui/LiveRowsModel.h"

void LiveRowsModel::setSource(ObjectListModel* source) {
    if (source_ == source) return;
    beginResetModel();
    if (source_) disconnect(source_, nullptr, this, nullptr);
    source_ = source;
    retired_ = 0;
    if (source_) {
        using M = QAbstractItemModel;
        connect(source_, &M::rowsAboutToBeInserted, this, [this](const QModelIndex&, int first, int last) {
            if (live(first)) beginInsertRows({}, first - retired_, last - retired_);
        });
        connect(source_, &M::rowsInserted, this, [this] { finish(&LiveRowsModel::endInsertRows); });
        connect(source_, &M::rowsAboutToBeRemoved, this, [this](const QModelIndex&, int first, int last) {
            if (live(first)) beginRemoveRows({}, first - retired_, last - retired_);
        });
        connect(source_, &M::rowsRemoved, this, [this] { finish(&LiveRowsModel::endRemoveRows); });
        connect(source_, &M::modelAboutToBeReset, this, [this] { live(-1); });
        connect(source_, &M::modelReset, this, [this] { finish(nullptr); });
        connect(source_, &QObject::destroyed, this, [this] {
            live(-1);
            finish(nullptr);
        });
    }
    endResetModel();
    emit sourceChanged();
}

bool LiveRowsModel::live(int first) {
    if (first >= retired_) return true;
    restarting_ = true;
    beginResetModel();
    return false;
}

void LiveRowsModel::finish(void (QAbstractItemModel::*end)()) {
    if (!restarting_) {
        if (end) (this->*end)();
        return;
    }
    restarting_ = false;
    retired_ = 0;
    endResetModel();
    emit restarted();
}

int LiveRowsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() || !source_ ? 0 : source_->count() - retired_;
}

QVariant LiveRowsModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    return source_->data(source_->index(index.row() + retired_), role);
}

void LiveRowsModel::retire(int count) {
    count = qBound(0, count, rowCount());
    if (count == 0) return;
    beginRemoveRows({}, 0, count - 1);
    retired_ += count;
    endRemoveRows();
}
