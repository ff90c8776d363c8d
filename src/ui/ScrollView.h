#pragma once

#include <QtQml/qqmlregistration.h>
#include <QSizeF>

#include "ui/View.h"

class ScrollView : public View {
    Q_OBJECT
    QML_ELEMENT
    KIT_PROPERTY(QSizeF, contentSize, setContentSize);  // empty: the layout's content decides
    KIT_PROPERTY_INIT(bool, scrollEnabled, setScrollEnabled, true);
    KIT_PROPERTY_INIT(bool, automaticallyAdjustsInsets, setAutomaticallyAdjustsInsets, true);

public:
    explicit ScrollView(QObject* parent = nullptr) : View(parent) {}
};
