#include "ui/SearchBar.h"

void SearchBar::setShowsCancelButton(bool shows, bool animated) {
    if (shows == showsCancelButton_) return;
    showsCancelButton_ = shows;
    cancelButtonAnimated_ = animated;
    emit showsCancelButtonChanged();
}

void SearchBar::userBeganEditing() {
    setFirstResponder(true);
    if (delegate_) delegate_->searchBarTextDidBeginEditing();
}

void SearchBar::userChangedText(const QString& text) {
    if (text == m_text) return;
    setText(text);
    if (delegate_) delegate_->searchBarTextDidChange(text);
}

void SearchBar::userPressedSearch() {
    if (delegate_) delegate_->searchBarSearchButtonClicked();
}

void SearchBar::userPressedCancel() {
    if (delegate_) delegate_->searchBarCancelButtonClicked();
}
