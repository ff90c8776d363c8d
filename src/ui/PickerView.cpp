#include "ui/PickerView.h"

#include <algorithm>

void PickerView::reloadAllComponents() {
    rowCounts_.clear();
    const int64_t components = dataSource_ ? dataSource_->numberOfComponentsInPickerView() : 0;
    for (int64_t c = 0; c < components; ++c) {
        const int64_t rows = dataSource_->pickerViewNumberOfRowsInComponent(c);
        rowCounts_.append(int(std::max<int64_t>(rows, 0)));
    }
    // A renderer may still hold the old wheels until it has built the new ones.
    for (Wheel* wheel : std::as_const(wheels_)) wheel->deleteLater();
    wheels_.clear();
    for (qsizetype c = 0; c < rowCounts_.size(); ++c)
        wheels_.append(new Wheel(
            rowCounts_[c], [this, c](int row) { return titleForRow(row, int(c)); }, this));
    selected_.resize(rowCounts_.size());
    for (qsizetype c = 0; c < selected_.size(); ++c)
        selected_[c] = std::clamp(selected_[c], 0, std::max(rowCounts_[c] - 1, 0));
    emit componentsReloaded();
}

void PickerView::selectRow(int64_t row, int64_t component, bool animated) {
    if (component < 0 || component >= selected_.size() || rowCounts_[component] == 0) return;
    const int clamped = int(std::clamp<int64_t>(row, 0, rowCounts_[component] - 1));
    selected_[component] = clamped;
    emit rowSelected(clamped, int(component), animated);
}

int PickerView::selectedRowInComponent(int component) const {
    return component >= 0 && component < selected_.size() ? selected_[component] : -1;
}

QString PickerView::titleForRow(int row, int component) {
    return delegate_ ? delegate_->pickerViewTitleForRowForComponent(row, component) : QString();
}

QString PickerView::accessibilityLabelForComponent(int component) {
    return delegate_ ? delegate_->pickerViewAccessibilityLabelForComponent(component) : QString();
}

void PickerView::userSelectedRow(int row, int component) {
    if (component < 0 || component >= selected_.size()) return;
    if (row < 0 || row >= rowCounts_[component]) return;
    selected_[component] = row;
    if (delegate_) delegate_->pickerViewDidSelectRowInComponent(row, component);
}
