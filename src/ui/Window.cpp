#include "ui/Window.h"

#include "ui/TabBarController.h"

void Window::setRootViewController(NavigationController* root) {
    if (root_) root_->deleteLater();
    root_ = root;
    root_->setParent(this);
    emit rootViewControllerChanged();
    root_->setVisible(true);
}

void Window::addSubview(TabBarController* tabs) {
    tabs->setParent(this);
    subviews_.append(tabs);
    emit subviewsChanged();
    tabs->setVisible(true);
}

void Window::present(QObject* modal) {
    presented_.removeOne(modal);
    presented_.append(modal);
    emit presentedChanged();
}

void Window::dismiss(QObject* modal) {
    if (presented_.removeOne(modal)) emit presentedChanged();
}
