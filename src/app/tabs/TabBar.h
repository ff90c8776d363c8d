#pragma once
// The screen shown once set-up is done: reads the database, works out which day of the plan
// today is, and puts the five-tab interface over the window.

#include <QList>

#include "ui/NavigationController.h"
#include "ui/TabBarController.h"
#include "ui/ViewController.h"

class TabBar : public ViewController {
    Q_OBJECT

public:
    using ViewController::ViewController;
    bool takesKeyboard() const override { return false; }

    QList<NavigationController*> tabArray;
    ViewController* todayObj = nullptr;
    ViewController* foodObj = nullptr;
    ViewController* exerciseObj = nullptr;
    ViewController* logObj = nullptr;
    ViewController* moreObj = nullptr;
    NavigationController* todayNav = nullptr;
    NavigationController* foodNav = nullptr;
    NavigationController* exerciseNav = nullptr;
    NavigationController* logNav = nullptr;
    NavigationController* moreNav = nullptr;

protected:
    void viewDidLoad() override;
};
