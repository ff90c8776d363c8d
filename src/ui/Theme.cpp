#include "ui/Theme.h"

#include <QFontDatabase>

void Theme::setImageScale(qreal scale) {
    if (scale == imageScale_) return;
    imageScale_ = scale;
    emit imageScaleChanged();
}

QUrl Theme::imageUrl(const QString& name, qreal scale) {
    if (name.isEmpty()) return {};
    // A larger rendering drawn smaller stays sharp; a smaller one drawn larger does not.
    const char* suffix = scale > 2 ? "@3x" : scale > 1 ? "@2x" : "";
    return QUrl(QStringLiteral("qrc:/images/%1%2.png").arg(name, QLatin1String(suffix)));
}

QString Theme::familyFor(const QString& fontName) {
    return !fontName.isEmpty() && QFontDatabase::hasFamily(fontName) ? fontName : fontFamily();
}

int Theme::weightFor(const QString& fontName) {
    if (fontName.endsWith(QLatin1String("-Thin"))) return QFont::Thin;
    if (fontName.endsWith(QLatin1String("-Bold"))) return QFont::Bold;
    return QFont::Normal;
}
