#pragma once
// A text layer: a string drawn in its frame from the top, in a named font and colour, over its
// background colour. Layers are drawing, not controls: assistive technology does not see them,
// the view that owns them speaks for them.

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QHash>
#include <QList>

#include "ui/BasicAnimation.h"
#include "ui/View.h"

// How a renderer plays a background colour animation: from the layer's colour to `to` and, when
// it reverses, back again, each way over `duration` ms along `curve` and `backCurve` (cubic
// Bézier control points and end, as QML's easing takes them; empty for linear), `loops` times.
struct ColourFlash {
    Q_GADGET
    QML_VALUE_TYPE(colourFlash)
    Q_PROPERTY(bool valid MEMBER valid)
    Q_PROPERTY(QColor to MEMBER to)
    Q_PROPERTY(bool reverses MEMBER reverses)
    Q_PROPERTY(int duration MEMBER duration)
    Q_PROPERTY(int loops MEMBER loops)
    Q_PROPERTY(QList<qreal> curve MEMBER curve)
    Q_PROPERTY(QList<qreal> backCurve MEMBER backCurve)

public:
    bool valid = false;  // false: there is no colour animation under the key
    QColor to;
    bool reverses = false;
    int duration = 0;
    int loops = 1;
    QList<qreal> curve;
    QList<qreal> backCurve;
};

class TextLayer : public View {
    Q_OBJECT
    QML_ELEMENT
    KIT_PROPERTY(QString, string, setString);
    KIT_PROPERTY(QString, fontName, setFontName);  // a face this machine lacks falls back
    KIT_PROPERTY_INIT(qreal, fontSize, setFontSize, 36);
    // "natural" (left), "left", "right", "center" or "justified".
    KIT_PROPERTY_INIT(QString, alignmentMode, setAlignmentMode, QStringLiteral("natural"));
    KIT_PROPERTY_INIT(QColor, foregroundColor, setForegroundColor, Qt::white);
    KIT_PROPERTY_INIT(QColor, backgroundColor, setBackgroundColor, Qt::transparent);

public:
    explicit TextLayer(QObject* parent = nullptr) : View(parent) {}

    // Plays the animation at once; one added under the same key replaces it and starts afresh.
    void addAnimation(const BasicAnimation& animation, const QString& key);
    // The animation playing under key, or null once it has finished (or was never added).
    const BasicAnimation* animationForKey(const QString& key) const;

    // For the renderer: how to play the animation under key.
    Q_INVOKABLE ColourFlash colourFlash(const QString& key) const;
    // For the renderer: the animation under key has finished and goes.
    Q_INVOKABLE void animationDidStop(const QString& key) { animations_.remove(key); }

signals:
    void animationAdded(const QString& key);

private:
    QHash<QString, BasicAnimation> animations_;
};
