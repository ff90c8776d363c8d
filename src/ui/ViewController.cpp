#include "ui/ViewController.h"

#include "ui/NavigationController.h"

TabBarController* ViewController::tabBarController() const {
    return navigationController_ ? navigationController_->tabBarController() : nullptr;
}

void ViewController::loadViewIfNeeded() {
    if (viewLoaded_) return;
    viewLoaded_ = true;
    viewDidLoad();
}

void ViewController::beginAppearance(bool appearing, bool animated) {
    loadViewIfNeeded();
    appearing ? viewWillAppear(animated) : viewWillDisappear(animated);
}

void ViewController::endAppearance(bool appeared, bool animated) {
    appeared ? viewDidAppear(animated) : viewDidDisappear(animated);
}
