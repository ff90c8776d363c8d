#pragma once
// The program's red: bar buttons' titles, tints of the navigation and tab bars, chosen items.
// QML's Theme.tint is the same colour.

#include <QColor>

inline QColor redColor() { return QColor(255, 59, 48); }
