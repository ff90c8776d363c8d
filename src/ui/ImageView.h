#pragma once

#include <QtQml/qqmlregistration.h>
#include "ui/View.h"

class ImageView : public View {
    Q_OBJECT
    QML_ELEMENT
    KIT_PROPERTY(QString, imageName, setImageName);  // a resource name: "check", "bg"

public:
    explicit ImageView(QObject* parent = nullptr) : View(parent) {}
};
