#pragma once

#include <QtQml/qqmlregistration.h>
#include "ui/View.h"

class TextField : public View {
    Q_OBJECT
    QML_ELEMENT
    KIT_PROPERTY(QString, text, setText);
    KIT_PROPERTY(QString, placeholder, setPlaceholder);
    // The renderer focuses the field and raises the keyboard while this is set.
    KIT_PROPERTY(bool, firstResponder, setFirstResponder);

public:
    explicit TextField(QObject* parent = nullptr) : View(parent) {}
    void becomeFirstResponder() { setFirstResponder(true); }
    void resignFirstResponder() { setFirstResponder(false); }
};
