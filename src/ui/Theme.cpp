#include "ui/Theme.h"

#include <QFontDatabase>

QUrl Theme::imageUrl(const QString& name) {
    return name.isEmpty() ? QUrl() : QUrl(QStringLiteral("qrc:/images/%1.png").arg(name));
}

QString Theme::familyFor(const QString& fontName) {
    return !fontName.isEmpty() && QFontDatabase::hasFamily(fontName) ? fontName : fontFamily();
}

int Theme::weightFor(const QString& fontName) {
    if (fontName.endsWith(QLatin1String("-Thin"))) return QFont::Thin;
    if (fontName.endsWith(QLatin1String("-Bold"))) return QFont::Bold;
    return QFont::Normal;
}
