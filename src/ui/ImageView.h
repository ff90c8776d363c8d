#pragma once

#include "ui/View.h"

class ImageView : public View {
    Q_OBJECT
    KIT_PROPERTY(QString, imageName, setImageName);  // a resource name: "check", "bg"

public:
    explicit ImageView(QObject* parent = nullptr) : View(parent) {}
};
