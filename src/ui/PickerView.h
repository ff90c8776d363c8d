#pragma once
// A picker of wheels ("components"), each a column of rows. What it shows is asked of its data
// source (how many wheels and rows) and its delegate (each row's title, as the wheel draws it,
// and what each wheel sets, as assistive technology names it); the delegate also hears of the row
// a wheel comes to rest on after the user turned it, by pointer, keyboard or assistive technology.
// A row selected by code is not reported.

#include <QtQml/qqmlregistration.h>
#include <QList>
#include <QQmlListProperty>
#include <QString>
#include <cstdint>

#include "ui/View.h"
#include "ui/Wheel.h"

class PickerViewDataSource {
public:
    virtual int64_t numberOfComponentsInPickerView() = 0;
    virtual int64_t pickerViewNumberOfRowsInComponent(int64_t component) = 0;

protected:
    ~PickerViewDataSource() = default;
};

class PickerViewDelegate {
public:
    virtual QString pickerViewTitleForRowForComponent(int64_t row, int64_t component) = 0;
    virtual void pickerViewDidSelectRowInComponent(int64_t row, int64_t component) = 0;
    // What the wheel sets ("Height", "Minutes"); empty leaves it unnamed.
    virtual QString pickerViewAccessibilityLabelForComponent(int64_t /*component*/) { return {}; }

protected:
    ~PickerViewDelegate() = default;
};

class PickerView : public View {
    Q_OBJECT
    QML_ELEMENT
    // A wheel per component, as last asked of the data source; a reload makes them anew.
    Q_PROPERTY(QQmlListProperty<Wheel> wheels READ wheels NOTIFY componentsReloaded)

public:
    explicit PickerView(QObject* parent = nullptr) : View(parent) {}

    // Neither is owned; the screen that owns the picker is usually both.
    void setDataSource(PickerViewDataSource* dataSource) { dataSource_ = dataSource; }
    void setDelegate(PickerViewDelegate* delegate) { delegate_ = delegate; }

    // Asks the data source again; selections stay where the new rows allow.
    void reloadAllComponents();
    QList<int> rowCounts() const { return rowCounts_; }
    QQmlListProperty<Wheel> wheels() { return readOnlyList(this, wheels_); }

    // Turns a wheel from code, without telling the delegate.
    void selectRow(int64_t row, int64_t component, bool animated);
    // -1 for a component the picker does not have.
    Q_INVOKABLE int selectedRowInComponent(int component) const;

    // A row's title, asked of the delegate when the wheel draws it.
    QString titleForRow(int row, int component);
    // For the renderer: a wheel's accessible name, asked of the delegate.
    Q_INVOKABLE QString accessibilityLabelForComponent(int component);
    // For the renderer: the user turned a wheel and it came to rest on row.
    Q_INVOKABLE void userSelectedRow(int row, int component);

signals:
    void componentsReloaded();
    // For the renderer: code turned a wheel.
    void rowSelected(int row, int component, bool animated);

private:
    PickerViewDataSource* dataSource_ = nullptr;
    PickerViewDelegate* delegate_ = nullptr;
    QList<int> rowCounts_;
    QList<Wheel*> wheels_;
    QList<int> selected_;
};
