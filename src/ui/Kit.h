#pragma once
// Makes the kit's view models known to QML (import CalorieKit) and its renderers and the
// program's images and layouts reachable (qrc:/ui, qrc:/images, qrc:/layouts).

void registerKitTypes();
