#pragma once
// The sublayers of a view that draws with layers, in drawing order (later ones on top), as a list
// model: every change is announced as the insertion or removal it is, so a renderer builds only
// what changed. KitLayers draws it.

#include <QAbstractListModel>
#include <QList>

class LayerList : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    explicit LayerList(QObject* parent = nullptr) : QAbstractListModel(parent) {}

    int count() const { return int(layers_.size()); }
    QObject* at(int index) const { return layers_.value(index); }
    const QList<QObject*>& layers() const { return layers_; }

    // Adds a layer on top. One without a parent becomes the list's, and goes when it is removed;
    // one that has a parent (a layer its view keeps) only leaves the list.
    void append(QObject* layer);
    // Removes every layer at once.
    void removeAll();

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void countChanged();

private:
    QList<QObject*> layers_;
};
