#include "ui/View.h"

const QList<QObject*>& View::subviews() const {
    static const QList<QObject*> none;
    return subviews_ ? subviews_->objects() : none;
}

ObjectListModel* View::subviewModel() {
    if (!subviews_) subviews_ = std::make_unique<ObjectListModel>();
    return subviews_.get();
}

void View::addSubview(QObject* view) {
    view->setParent(this);
    subviewModel()->append(view);
}

void View::removeSubview(QObject* view) {
    if (!subviews_ || !subviews_->remove(view)) return;
    view->deleteLater();  // a renderer may still hold it until the next frame
}
