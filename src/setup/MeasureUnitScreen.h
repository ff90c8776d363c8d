#pragma once
// The first set-up step: the measuring unit.

#include "ui/ViewController.h"

class MeasureUnitScreen : public ViewController {
    Q_OBJECT

public:
    explicit MeasureUnitScreen(const QString& layoutName, QObject* parent = nullptr);
};
