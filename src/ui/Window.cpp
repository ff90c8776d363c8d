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
    tabs->setVisible(true);
}

void Window::present(QObject* modal) {
    presented_.remove(modal);  // shown again: to the front
    presented_.append(modal);
}

void Window::dismiss(QObject* modal) { presented_.remove(modal); }
