#pragma once
// Books a typed number of calories as food or as exercise.

#include "ui/ViewController.h"

class CustomEntryScreen : public ViewController {
    Q_OBJECT

public:
    explicit CustomEntryScreen(const QString& layoutName, QObject* parent = nullptr);
};
