#pragma once
// A shape layer: a path of straight strokes, each from one point to another, in the layer's own
// coordinates (its frame's origin in its parent; no frame: the parent's origin). Added to a view
// with View::addSubview, or to a layer list, and gone for good once removed from a view.

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QLineF>
#include <QList>
#include <QPointF>
#include <QVariantList>

#include "ui/View.h"

class ShapeLayer : public View {
    Q_OBJECT
    QML_ELEMENT
    // For the renderer: the path's strokes as pairs of points, start then end.
    Q_PROPERTY(QVariantList lines READ lines NOTIFY pathChanged)
    KIT_PROPERTY_INIT(QColor, strokeColor, setStrokeColor, Qt::black);
    KIT_PROPERTY_INIT(qreal, lineWidth, setLineWidth, 1);
    KIT_PROPERTY_INIT(QColor, fillColor, setFillColor, Qt::transparent);

public:
    explicit ShapeLayer(QObject* parent = nullptr) : View(parent) {}

    const QList<QLineF>& path() const { return path_; }
    void setPath(const QList<QLineF>& path) {
        path_ = path;
        emit pathChanged();
    }
    // A path of one stroke.
    void setLine(QPointF start, QPointF end) { setPath({QLineF(start, end)}); }
    // The ends of the first stroke: the whole path when it is one line.
    QPointF from() const { return path_.isEmpty() ? QPointF() : path_.first().p1(); }
    QPointF to() const { return path_.isEmpty() ? QPointF() : path_.first().p2(); }

    QVariantList lines() const {
        QVariantList points;
        for (const QLineF& line : path_) points << line.p1() << line.p2();
        return points;
    }

signals:
    void pathChanged();

private:
    QList<QLineF> path_;
};
