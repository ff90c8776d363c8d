#include "ui/View.h"

void View::addSubview(QObject* view) {
    view->setParent(this);
    subviews_.append(view);
    emit subviewsChanged();
}

void View::removeSubview(QObject* view) {
    if (!subviews_.removeOne(view)) return;
    emit subviewsChanged();
    view->deleteLater();  // a renderer may still hold it until the next frame
}
