#pragma once
// How assistive technology reads a picker wheel. Qt Quick's own interface gives a spin button a
// number and no text, so a screen reader would read a blank row or a month as a number; this one
// adds the row's title as the spin button's text, as a desktop toolkit's spin button has it.

#include <QAccessibleObject>

class WheelItem;

class WheelAccessible : public QAccessibleObject,
                        public QAccessibleValueInterface,
                        public QAccessibleTextInterface,
                        public QAccessibleActionInterface {
public:
    explicit WheelAccessible(WheelItem* wheel);
    // Makes wheels answer with this interface; once is enough.
    static void install();

    QWindow* window() const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QString text(QAccessible::Text t) const override;
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::SpinBox; }
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override { return 1; }

    QString text(int startOffset, int endOffset) const override;
    int characterCount() const override;
    void selection(int, int* startOffset, int* endOffset) const override { *startOffset = *endOffset = 0; }
    int selectionCount() const override { return 0; }
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override {}
    QRect characterRect(int) const override { return {}; }
    int offsetAtPoint(const QPoint&) const override { return -1; }
    void scrollToSubstring(int, int) override {}
    QString attributes(int, int* startOffset, int* endOffset) const override;

    QStringList actionNames() const override;
    void doAction(const QString& actionName) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    WheelItem* wheel() const;
};
