#pragma once
// The activity catalogue.

#include "ui/ViewController.h"

class ExerciseScreen : public ViewController {
    Q_OBJECT

public:
    explicit ExerciseScreen(const QString& layoutName, QObject* parent = nullptr);
};
