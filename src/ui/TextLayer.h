#pragma once
// A text layer: a string drawn in its frame from the top, in a named font and colour, over its
// background colour. Layers are drawing, not controls: assistive technology does not see them,
// the view that owns them speaks for them.

#include <QColor>
#include <QHash>
#include <QVariantMap>

#include "ui/BasicAnimation.h"
#include "ui/View.h"

class TextLayer : public View {
    Q_OBJECT
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

    // For the renderer: the animation under key as keyPath, toValue, duration, autoreverses,
    // repeatCount and timingFunction; empty when there is none.
    Q_INVOKABLE QVariantMap animationDescription(const QString& key) const;
    // For the renderer: the animation under key has finished and goes.
    Q_INVOKABLE void animationDidStop(const QString& key) { animations_.remove(key); }

signals:
    void animationAdded(const QString& key);

private:
    QHash<QString, BasicAnimation> animations_;
};
