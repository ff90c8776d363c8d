#include "ui/Window.h"

#include "ui/TabBarController.h"

#include <algorithm>
#include <cmath>

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

void Window::dismiss(QObject* modal) {
    presented_.remove(modal);
}

void Window::setDesignSize(QSizeF points) {
    design_ = points;
    layOutCanvas();
}

void Window::setViewport(QSizeF windowSize) {
    viewport_ = windowSize;
    layOutCanvas();
}

void Window::layOutCanvas() {
    if (design_.isEmpty() || viewport_.isEmpty()) return;
    const qreal scale =
        std::min(viewport_.width() / design_.width(), viewport_.height() / design_.height());
    const QSizeF canvas(design_.width(), viewport_.height() / scale);
    // On whole pixels: a canvas starting between two is drawn soft.
    const qreal x = std::floor((viewport_.width() - design_.width() * scale) / 2);
    if (scale == scale_ && canvas == canvas_ && x == canvasX_) return;
    scale_ = scale;
    canvas_ = canvas;
    canvasX_ = x;
    emit canvasChanged();
}
