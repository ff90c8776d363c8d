#pragma once
// The program's last word, shown in a window of its own when there is a display to show it on:
// the cause, and where the data allows, the ways out (save the days as CSV, put back the newest
// automatic backup, finish a set-up that stopped halfway, start a new plan).

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>
#include <QUrl>
#include <memory>

#include "store/DeadEnd.h"

class YourData;

// A display a person looks at: not the offscreen or minimal platforms of tests and headless runs,
// where a window would wait for a click that never comes.
bool hasDisplay();

// What the window shows and does. A way out that lets the program go on (a restore, a finished
// set-up, a new plan) closes it with goOn set.
class EndMessage : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program as it ends")
    Q_PROPERTY(QString message READ message CONSTANT)
    Q_PROPERTY(bool canExport READ canExport CONSTANT)
    Q_PROPERTY(bool canRestore READ canRestore CONSTANT)
    Q_PROPERTY(bool canFinish READ canFinish CONSTANT)
    Q_PROPERTY(bool canStartNew READ canStartNew CONSTANT)
    // What the last way out did, or why it could not.
    Q_PROPERTY(QString outcome READ outcome NOTIFY outcomeChanged)
    Q_PROPERTY(QUrl suggestedCsv READ suggestedCsv CONSTANT)

public:
    // data null: a cause without ways out.
    EndMessage(const QString& cause, const DeadEnd& end, const YourData* data, QObject* parent = nullptr);

    QString message() const { return message_; }
    bool canExport() const { return data_ && end_.canExport; }
    bool canRestore() const { return data_ && end_.canRestore; }
    bool canFinish() const { return data_ && end_.setUpInterrupted; }
    bool canStartNew() const { return data_ && end_.canStartNew; }
    QString outcome() const { return outcome_; }
    QUrl suggestedCsv() const;
    bool goOn() const { return goOn_; }

    Q_INVOKABLE void exportTo(const QUrl& file);
    Q_INVOKABLE void restoreLatest();
    Q_INVOKABLE void finishPlan();
    Q_INVOKABLE void startNewPlan();

signals:
    void outcomeChanged();
    void finished();

private:
    void report(bool ok, const std::string& text, bool goOn);

    QString message_;
    DeadEnd end_;
    const YourData* data_;
    QString outcome_;
    bool goOn_ = false;
};

// Shows message in a small modal window and returns once the person has closed it (Quit,
// Escape or the window's close button). The app's other windows are hidden first.
void showEndMessageWindow(const QString& message);

// The same for a plan that cannot be shown, with its ways out: true once one of them lets the
// program go on, false when the person quits. Without a display: false at once.
bool offerWaysOut(const DeadEnd& end, const YourData& data);

// Makes endProgram() show its message in that window whenever there is a display.
void installEndMessageWindow();
