#pragma once
// The fourth tab: steps through the days of the plan.

#include "ui/ViewController.h"

class LogScreen : public ViewController {
    Q_OBJECT

public:
    explicit LogScreen(const QString& layoutName, QObject* parent = nullptr);
};
