#pragma once
// A modal message with one or more buttons, shown over the whole window.

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QStringList>

#include "ui/Property.h"

class AlertView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by screen code")
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString message READ message CONSTANT)
    Q_PROPERTY(QStringList buttonTitles READ buttonTitles CONSTANT)

public:
    AlertView(const QString& title, const QString& message, const QString& cancelButtonTitle,
              QObject* parent = nullptr);

    QString title() const { return title_; }
    QString message() const { return message_; }
    // The cancel button first, as the platform numbers an alert's buttons.
    QStringList buttonTitles() const { return buttons_; }
    // Adds a button after the cancel button; returns its index.
    int addButtonWithTitle(const QString& title);

    // Shows the alert in the application's window; it deletes itself once dismissed.
    void show();
    Q_INVOKABLE void clickButtonAtIndex(int index);

signals:
    void clickedButtonAtIndex(int index);

private:
    QString title_;
    QString message_;
    QStringList buttons_;
};
