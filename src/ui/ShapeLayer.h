#pragma once
// A shape layer holding one straight line: a stroke from one point to another in its parent's
// coordinates. Added to a view with View::addSubview and gone for good once removed.

#include <QColor>
#include <QPointF>

#include "ui/View.h"

class ShapeLayer : public View {
    Q_OBJECT
    KIT_PROPERTY(QPointF, from, setFrom);
    KIT_PROPERTY(QPointF, to, setTo);
    KIT_PROPERTY_INIT(QColor, strokeColor, setStrokeColor, Qt::black);
    KIT_PROPERTY_INIT(qreal, lineWidth, setLineWidth, 1);
    KIT_PROPERTY_INIT(QColor, fillColor, setFillColor, Qt::transparent);

public:
    explicit ShapeLayer(QObject* parent = nullptr) : View(parent) {}

    void setLine(QPointF start, QPointF end) {
        setFrom(start);
        setTo(end);
    }
};
