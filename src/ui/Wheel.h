#pragma once
// One wheel of a picker as its renderer sees it: how many rows it has and, asked as the wheel
// draws them, the rows' titles.

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>
#include <functional>

class Wheel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by its picker")
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    using Titles = std::function<QString(int row)>;
    Wheel(int count, Titles titles, QObject* parent = nullptr)
        : QObject(parent), count_(count), titles_(std::move(titles)) {}

    int count() const { return count_; }
    void setCount(int count) {
        if (count == count_) return;
        count_ = count;
        emit countChanged();
    }
    Q_INVOKABLE QString title(int row) const { return titles_(row); }

signals:
    void countChanged();

private:
    int count_;
    Titles titles_;
};
