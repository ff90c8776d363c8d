#pragma once
// A routing screen that makes the launch's choice from inside a navigation controller: the
// set-up wizard until "firstTime" is "no", the tab interface after. The launch does not use it.

#include "ui/ViewController.h"

class SplashScreen : public ViewController {
    Q_OBJECT

public:
    // pad: the device reports the tablet idiom; a device that cannot tell is a phone.
    explicit SplashScreen(bool pad = false, QObject* parent = nullptr)
        : ViewController(parent), pad_(pad) {}

protected:
    void viewDidLoad() override;
    void viewDidDisappear(bool animated) override;

private:
    bool pad_;
};
