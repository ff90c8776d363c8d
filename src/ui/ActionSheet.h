#pragma once
// An option sheet: a title, choices numbered from 0, then the cancel button with the next index.
// It stays alive after a choice so that it can be shown again.

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QStringList>

#include "ui/Property.h"

class ActionSheet : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by screen code")
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QStringList otherButtonTitles READ otherButtonTitles CONSTANT)
    Q_PROPERTY(QString cancelButtonTitle READ cancelButtonTitle CONSTANT)
    KIT_PROPERTY(int, tag, setTag);

public:
    ActionSheet(const QString& title, const QString& cancelButtonTitle,
                const QStringList& otherButtonTitles, QObject* parent = nullptr);

    QString title() const { return title_; }
    QString cancelButtonTitle() const { return cancel_; }
    QStringList otherButtonTitles() const { return others_; }
    int cancelButtonIndex() const { return int(others_.size()); }
    bool isVisible() const { return visible_; }

    void show();
    Q_INVOKABLE void clickButtonAtIndex(int index);

signals:
    void clickedButtonAtIndex(ActionSheet* sheet, int index);

private:
    QString title_;
    QString cancel_;
    QStringList others_;
    bool visible_ = false;
};
