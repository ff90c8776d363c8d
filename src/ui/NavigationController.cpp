#include "ui/NavigationController.h"

NavigationController::NavigationController(ViewController* root, QObject* parent)
    : QObject(parent) {
    root->setParent(this);
    root->navigationController_ = this;
    stack_.append(root);
}

void NavigationController::setVisible(bool visible) {
    if (visible_ == visible) return;
    visible_ = visible;
    ViewController* top = topViewController();
    top->beginAppearance(visible, false);
    top->endAppearance(visible, false);
}

void NavigationController::pushViewController(ViewController* controller, bool animated) {
    ViewController* previous = topViewController();
    controller->setParent(this);
    controller->navigationController_ = this;
    // On the stack and rendered (its layout loaded) before viewDidLoad, which may push in turn.
    stack_.append(controller);
    emit pushed(controller, animated);
    emit stackChanged();
    controller->loadViewIfNeeded();
    if (!visible_ || topViewController() != controller) return;
    previous->beginAppearance(false, animated);
    controller->beginAppearance(true, animated);
    previous->endAppearance(false, animated);
    controller->endAppearance(true, animated);
}

void NavigationController::popViewController(bool animated) {
    popTo(stack_.size() - 1, animated);
}

void NavigationController::popToRootViewController(bool animated) {
    popTo(1, animated);
}

void NavigationController::popTo(qsizetype depth, bool animated) {
    if (depth < 1 || depth >= stack_.size()) return;
    ViewController* leaving = topViewController();
    ViewController* showing = stack_[depth - 1];
    if (visible_) {
        leaving->beginAppearance(false, animated);
        showing->beginAppearance(true, animated);
    }
    const QList<ViewController*> removed = stack_.mid(depth);
    stack_.resize(depth);
    for (ViewController* controller : removed) controller->navigationController_ = nullptr;
    emit popped(int(removed.size()), animated);
    emit stackChanged();
    if (visible_) {
        leaving->endAppearance(false, animated);
        showing->endAppearance(true, animated);
    }
    if (!m_rendered) {
        for (ViewController* controller : removed) controller->deleteLater();
    }
}

void NavigationController::finishedRemoving(ViewController* controller) {
    if (controller && !stack_.contains(controller) && controller->parent() == this)
        controller->deleteLater();
}
