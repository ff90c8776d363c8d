#pragma once
// Finds a food of the catalogue by part of its name.

#include "ui/ViewController.h"

class SearchFoodScreen : public ViewController {
    Q_OBJECT

public:
    explicit SearchFoodScreen(const QString& layoutName, QObject* parent = nullptr);
};
