#include "ui/TextLayer.h"

#include <algorithm>
#include <cmath>

void TextLayer::addAnimation(const BasicAnimation& animation, const QString& key) {
    animations_.insert(key, animation);
    emit animationAdded(key);
}

const BasicAnimation* TextLayer::animationForKey(const QString& key) const {
    const auto found = animations_.constFind(key);
    return found == animations_.cend() ? nullptr : &found.value();
}

ColourFlash TextLayer::colourFlash(const QString& key) const {
    const BasicAnimation* a = animationForKey(key);
    if (!a || a->keyPath != QLatin1String("backgroundColor")) return {};
    // The platform's named timing curves; the way back runs the same curve backwards.
    static const QHash<QString, QList<qreal>> curves{{"easeIn", {0.42, 0, 1, 1}},
                                                     {"easeOut", {0, 0, 0.58, 1}},
                                                     {"easeInEaseOut", {0.42, 0, 0.58, 1}}};
    ColourFlash flash;
    flash.valid = true;
    flash.to = a->toValue.value<QColor>();
    flash.reverses = a->autoreverses;
    flash.duration = int(a->duration * 1000);
    flash.loops = std::max(1, int(std::ceil(a->repeatCount)));
    if (const auto p = curves.value(a->timingFunction); !p.isEmpty()) {
        flash.curve = {p[0], p[1], p[2], p[3], 1, 1};
        flash.backCurve = {1 - p[2], 1 - p[3], 1 - p[0], 1 - p[1], 1, 1};
    }
    return flash;
}
