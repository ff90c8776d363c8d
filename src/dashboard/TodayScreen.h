#pragma once
// The first tab: today's calories against the budget.

#include "ui/ViewController.h"

class TodayScreen : public ViewController {
    Q_OBJECT

public:
    explicit TodayScreen(const QString& layoutName, QObject* parent = nullptr);
};
