#pragma once
// A search field with an optional cancel button beside it. Its delegate hears when editing
// begins, of every change of the text by the user (each keystroke, paste or deletion), and of the
// search and cancel buttons. Text set by code is not reported.

#include <QtQml/qqmlregistration.h>
#include <QString>

#include "ui/View.h"

class SearchBarDelegate {
public:
    virtual void searchBarTextDidBeginEditing() {}
    virtual void searchBarTextDidChange(const QString& /*searchText*/) {}
    virtual void searchBarSearchButtonClicked() {}
    virtual void searchBarCancelButtonClicked() {}

protected:
    ~SearchBarDelegate() = default;
};

class SearchBar : public View {
    Q_OBJECT
    QML_ELEMENT
    KIT_PROPERTY(QString, text, setText);
    KIT_PROPERTY_INIT(QString, placeholder, setPlaceholder, QStringLiteral("Search"));
    Q_PROPERTY(bool showsCancelButton READ showsCancelButton NOTIFY showsCancelButtonChanged)
    // For the renderer: whether the last change of the cancel button is animated.
    Q_PROPERTY(bool cancelButtonAnimated READ cancelButtonAnimated NOTIFY showsCancelButtonChanged)
    // The renderer focuses the field and raises the keyboard while this is set.
    KIT_PROPERTY(bool, firstResponder, setFirstResponder);

public:
    explicit SearchBar(QObject* parent = nullptr) : View(parent) {}

    // Not owned; the screen that owns the bar is usually its delegate.
    void setDelegate(SearchBarDelegate* delegate) { delegate_ = delegate; }

    bool showsCancelButton() const { return showsCancelButton_; }
    bool cancelButtonAnimated() const { return cancelButtonAnimated_; }
    void setShowsCancelButton(bool shows, bool animated);

    void becomeFirstResponder() { setFirstResponder(true); }
    void resignFirstResponder() { setFirstResponder(false); }

    // For the renderer and tests: what the user did.
    Q_INVOKABLE void userBeganEditing();
    Q_INVOKABLE void userChangedText(const QString& text);
    Q_INVOKABLE void userPressedSearch();
    Q_INVOKABLE void userPressedCancel();

signals:
    void showsCancelButtonChanged();

private:
    SearchBarDelegate* delegate_ = nullptr;
    bool showsCancelButton_ = false;
    bool cancelButtonAnimated_ = false;
};
