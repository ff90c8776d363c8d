#include "ui/TabBarController.h"

void TabBarController::setViewControllers(const QList<NavigationController*>& controllers) {
    for (NavigationController* tab : tabs_) tab->deleteLater();
    tabs_ = controllers;
    for (NavigationController* tab : tabs_) {
        tab->setParent(this);
        tab->setTabBarController(this);
    }
    selectedIndex_ = 0;
    emit viewControllersChanged();
    if (visible_ && !tabs_.isEmpty()) tabs_.first()->setVisible(true);
}

NavigationController* TabBarController::selectedViewController() const {
    return selectedIndex_ >= 0 && selectedIndex_ < tabs_.size() ? tabs_[selectedIndex_] : nullptr;
}

void TabBarController::setSelectedIndex(int index) {
    if (index == selectedIndex_ || index < 0 || index >= tabs_.size()) return;
    if (visible_) tabs_[selectedIndex_]->setVisible(false);
    selectedIndex_ = index;
    emit selectedIndexChanged();
    if (visible_) tabs_[selectedIndex_]->setVisible(true);
}

void TabBarController::setVisible(bool visible) {
    if (visible_ == visible) return;
    visible_ = visible;
    if (NavigationController* selected = selectedViewController()) selected->setVisible(visible);
}
