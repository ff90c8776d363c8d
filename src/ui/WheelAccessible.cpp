#include "ui/WheelAccessible.h"

#include <QQuickWindow>

#include "ui/WheelItem.h"

namespace {

QAccessibleInterface* wheelFactory(const QString&, QObject* object) {
    auto* wheel = qobject_cast<WheelItem*>(object);
    return wheel ? new WheelAccessible(wheel) : nullptr;
}

// The name and description QML gives through its Accessible attached object.
QString attachedText(const QQuickItem* item, const char* property) {
    for (QObject* child : item->children()) {
        if (qstrcmp(child->metaObject()->className(), "QQuickAccessibleAttached") == 0)
            return child->property(property).toString();
    }
    return {};
}

}  // namespace

WheelAccessible::WheelAccessible(WheelItem* wheel) : QAccessibleObject(wheel) {}

void WheelAccessible::install() {
    static const bool installed = [] {
        QAccessible::installFactory(wheelFactory);
        return true;
    }();
    Q_UNUSED(installed);
}

WheelItem* WheelAccessible::wheel() const { return static_cast<WheelItem*>(object()); }

QWindow* WheelAccessible::window() const { return wheel()->window(); }

QAccessibleInterface* WheelAccessible::parent() const {
    // The nearest ancestor that counts this wheel among its accessible children: items in
    // between that assistive technology does not see are skipped, as Qt Quick skips them.
    auto* self = const_cast<WheelAccessible*>(this);
    for (QQuickItem* item = wheel()->parentItem(); item; item = item->parentItem()) {
        if (item->window() && item == item->window()->contentItem())
            return QAccessible::queryAccessibleInterface(item->window());
        QAccessibleInterface* node = QAccessible::queryAccessibleInterface(item);
        if (node && node->indexOfChild(self) >= 0) return node;
    }
    return nullptr;
}

QString WheelAccessible::text(QAccessible::Text t) const {
    switch (t) {
    case QAccessible::Name: return attachedText(wheel(), "name");
    // A wheel of words says its word beside the row's number.
    case QAccessible::Description: {
        const QString title = wheel()->title();
        return title.trimmed().isEmpty() || QString::number(wheel()->value()) == title ? QString() : title;
    }
    case QAccessible::Value: return wheel()->spokenTitle();
    default: return {};
    }
}

QRect WheelAccessible::rect() const {
    const WheelItem* item = wheel();
    if (!item->window()) return {};
    // The pixels it covers on screen, at whatever scale the canvas is drawn.
    const QRectF scene = item->mapRectToScene(item->boundingRect());
    return QRect(item->window()->mapToGlobal(scene.topLeft().toPoint()), scene.size().toSize());
}

QAccessible::State WheelAccessible::state() const {
    const WheelItem* item = wheel();
    QAccessible::State state;
    state.invisible = !item->window() || !item->window()->isVisible() || !item->isVisible();
    state.focusable = item->activeFocusOnTab();
    state.focused = item->hasActiveFocus();
    state.disabled = !item->isEnabled();
    return state;
}

void* WheelAccessible::interface_cast(QAccessible::InterfaceType type) {
    switch (type) {
    case QAccessible::ValueInterface: return static_cast<QAccessibleValueInterface*>(this);
    case QAccessible::TextInterface: return static_cast<QAccessibleTextInterface*>(this);
    case QAccessible::ActionInterface: return static_cast<QAccessibleActionInterface*>(this);
    default: return nullptr;
    }
}

QVariant WheelAccessible::currentValue() const { return wheel()->value(); }
void WheelAccessible::setCurrentValue(const QVariant& value) { wheel()->turnToValue(value.toDouble()); }
QVariant WheelAccessible::minimumValue() const { return wheel()->count() > 0 ? wheel()->numberAt(0) : 0; }
QVariant WheelAccessible::maximumValue() const {
    return wheel()->count() > 0 ? wheel()->numberAt(wheel()->count() - 1) : 0;
}

QString WheelAccessible::text(int startOffset, int endOffset) const {
    const QString text = wheel()->spokenTitle();
    if (endOffset < 0 || endOffset > text.size()) endOffset = text.size();
    return text.mid(startOffset, std::max(0, endOffset - startOffset));
}

int WheelAccessible::characterCount() const { return int(wheel()->spokenTitle().size()); }

QString WheelAccessible::attributes(int, int* startOffset, int* endOffset) const {
    *startOffset = 0;
    *endOffset = characterCount();
    return {};
}

QStringList WheelAccessible::actionNames() const {
    return {increaseAction(), decreaseAction(), setFocusAction()};
}

void WheelAccessible::doAction(const QString& actionName) {
    if (actionName == increaseAction()) wheel()->turnBy(1);
    else if (actionName == decreaseAction()) wheel()->turnBy(-1);
    else if (actionName == setFocusAction()) wheel()->forceActiveFocus(Qt::OtherFocusReason);
}
