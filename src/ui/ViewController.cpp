#include "ui/ViewController.h"

#include "store/AppState.h"
#include "ui/NavigationController.h"

ViewController::ViewController(const QString& layoutName, QObject* parent)
    : QObject(parent), layoutName_(layoutName) {}

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

QString layoutFor(const char* className) {
    const QString name = QString::fromLatin1(className);
    return AppState::shared().isPad ? name + QStringLiteral("@iPad") : name;
}
