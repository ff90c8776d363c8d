#pragma once
// The More screen's "Your data": export the plan as CSV, back it up, and put a backup back in
// its place. The layout places the three buttons and one file dialog, which this opens and
// answers; what happened is told in an alert. A restore asks first and then closes the program,
// whose next start opens the restored plan.

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QStringList>
#include <QUrl>
#include <string>

#include "ui/Button.h"

// file name in the person's Documents folder, as a dialog's suggestion.
QUrl inDocuments(const std::string& name);

class YourDataSection : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("part of the More screen")
    Q_PROPERTY(Button* exportButton READ exportButton CONSTANT)
    Q_PROPERTY(Button* backupButton READ backupButton CONSTANT)
    Q_PROPERTY(Button* restoreButton READ restoreButton CONSTANT)
    // The file dialog: shown while a button waits for its file.
    Q_PROPERTY(bool dialogOpen READ dialogOpen NOTIFY dialogChanged)
    Q_PROPERTY(QString dialogTitle READ dialogTitle NOTIFY dialogChanged)
    Q_PROPERTY(bool dialogSaves READ dialogSaves NOTIFY dialogChanged)
    Q_PROPERTY(QString dialogAccept READ dialogAccept NOTIFY dialogChanged)
    Q_PROPERTY(QUrl dialogFile READ dialogFile NOTIFY dialogChanged)
    Q_PROPERTY(QUrl dialogFolder READ dialogFolder NOTIFY dialogChanged)
    Q_PROPERTY(QStringList dialogFilters READ dialogFilters NOTIFY dialogChanged)

public:
    explicit YourDataSection(QObject* parent = nullptr);

    Button* exportButton() { return &export_; }
    Button* backupButton() { return &backup_; }
    Button* restoreButton() { return &restore_; }
    bool dialogOpen() const { return asked_ != Asked::nothing; }
    QString dialogTitle() const;
    bool dialogSaves() const { return asked_ != Asked::restore; }
    QString dialogAccept() const { return dialogSaves() ? "Save" : "Open"; }
    QUrl dialogFile() const;
    QUrl dialogFolder() const;
    QStringList dialogFilters() const;

    Q_INVOKABLE void fileChosen(const QUrl& file);
    Q_INVOKABLE void dialogClosed();

signals:
    void dialogChanged();

private:
    enum class Asked { nothing, exportCsv, backup, restore };
    void ask(Asked what);
    void confirmRestore(const QUrl& file);
    void restoreFrom(const QUrl& file);

    Button export_;
    Button backup_;
    Button restore_;
    Asked asked_ = Asked::nothing;
};
