#include "ui/LayerList.h"

namespace {
constexpr int kLayerRole = Qt::UserRole;
}

void LayerList::append(QObject* layer) {
    if (!layer->parent()) layer->setParent(this);
    beginInsertRows({}, count(), count());
    layers_.append(layer);
    endInsertRows();
    emit countChanged();
}

void LayerList::removeAll() {
    if (layers_.isEmpty()) return;
    beginRemoveRows({}, 0, count() - 1);
    const QList<QObject*> removed = std::exchange(layers_, {});
    endRemoveRows();
    emit countChanged();
    for (QObject* layer : removed) {
        if (layer->parent() == this) layer->deleteLater();  // a renderer may hold it a frame longer
    }
}

int LayerList::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant LayerList::data(const QModelIndex& index, int role) const {
    if (role != kLayerRole || !index.isValid() || index.row() >= count()) return {};
    return QVariant::fromValue(layers_[index.row()]);
}

QHash<int, QByteArray> LayerList::roleNames() const {
    return {{kLayerRole, "sublayer"}};
}
