#pragma once
// An animation of one layer property from its current value to another, as a layer is given it
// with addAnimation. Only what the program's animations use is described.

#include <QString>
#include <QVariant>

struct BasicAnimation {
    QString keyPath;            // the animated property: "backgroundColor"
    QVariant toValue;           // a QColor for colours
    double duration = 0.25;     // seconds, one way
    bool autoreverses = false;  // then back again, as long again
    float repeatCount = 0;      // 0 and 1 both play once
    // "linear", "easeIn", "easeOut" or "easeInEaseOut" (empty: linear)
    QString timingFunction;
};
