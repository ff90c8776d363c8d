#include "ui/TextLayer.h"

void TextLayer::addAnimation(const BasicAnimation& animation, const QString& key) {
    animations_.insert(key, animation);
    emit animationAdded(key);
}

const BasicAnimation* TextLayer::animationForKey(const QString& key) const {
    const auto found = animations_.constFind(key);
    return found == animations_.cend() ? nullptr : &found.value();
}

QVariantMap TextLayer::animationDescription(const QString& key) const {
    const BasicAnimation* a = animationForKey(key);
    if (!a) return {};
    return {{"keyPath", a->keyPath},         {"toValue", a->toValue},
            {"duration", a->duration},       {"autoreverses", a->autoreverses},
            {"repeatCount", a->repeatCount}, {"timingFunction", a->timingFunction}};
}
