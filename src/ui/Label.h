#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>

#include "ui/View.h"

class Label : public View {
    Q_OBJECT
    QML_ELEMENT
    KIT_PROPERTY(QString, text, setText);
    KIT_PROPERTY_INIT(QColor, textColor, setTextColor, Qt::black);
    KIT_PROPERTY_INIT(QColor, backgroundColor, setBackgroundColor, Qt::transparent);
    // As the platform numbers them: 0 left, 1 centre, 2 right, 3 justified.
    KIT_PROPERTY(int, textAlignment, setTextAlignment);
    KIT_PROPERTY(QString, fontName, setFontName);  // empty: the layout's font
    KIT_PROPERTY(qreal, fontSize, setFontSize);    // 0: the layout's size
    // One line, its font made smaller as far as needed for the text to fit the label's width.
    KIT_PROPERTY(bool, adjustsFontSizeToFitWidth, setAdjustsFontSizeToFitWidth);

public:
    explicit Label(QObject* parent = nullptr) : View(parent) {}
};
