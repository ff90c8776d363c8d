#pragma once
// A text field as the renderer sees it: its text, placeholder, whether it has the keyboard, and
// which keys a touch keyboard should offer for it.

#include <QtQml/qqmlregistration.h>
#include "ui/View.h"

class TextField : public View {
    Q_OBJECT
    QML_ELEMENT
public:
    enum class KeyboardType { Default, NumberPad, DecimalPad };
    Q_ENUM(KeyboardType)

private:
    KIT_PROPERTY(QString, text, setText);
    KIT_PROPERTY(QString, placeholder, setPlaceholder);
    // The renderer focuses the field and raises the keyboard while this is set.
    KIT_PROPERTY(bool, firstResponder, setFirstResponder);
    KIT_PROPERTY(KeyboardType, keyboardType, setKeyboardType);
    // What the platform's input method is told of the field: digits (and a decimal point) for
    // numbers, without word prediction, which only gets in their way.
    Q_PROPERTY(int inputMethodHints READ inputMethodHints NOTIFY keyboardTypeChanged)

public:
    explicit TextField(QObject* parent = nullptr) : View(parent) {}
    void becomeFirstResponder() { setFirstResponder(true); }
    void resignFirstResponder() { setFirstResponder(false); }

    int inputMethodHints() const {
        switch (keyboardType()) {
        case KeyboardType::NumberPad: return Qt::ImhDigitsOnly | Qt::ImhNoPredictiveText;
        case KeyboardType::DecimalPad: return Qt::ImhFormattedNumbersOnly | Qt::ImhNoPredictiveText;
        case KeyboardType::Default: break;
        }
        return Qt::ImhNone;
    }
};
