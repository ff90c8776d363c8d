#include "app/DataFolderLock.h"

#include <QDir>

DataFolderLock::DataFolderLock(const QString& folder)
    : lock_(QDir(folder).filePath("calorie-counter.lock")) {
    QDir().mkpath(folder);
    // The program holds the lock for its whole run: only a holder that is no longer running
    // makes the file stale, never its age.
    lock_.setStaleLockTime(0);
    if (lock_.tryLock(0) || lock_.error() != QLockFile::LockFailedError) return;
    qint64 pid = 0;
    QString host, application;
    const bool known = lock_.getLockInfo(&pid, &host, &application);
    refusal_ = QString(
                   "the program is already running with the data folder %1%2; only one can use "
                   "a data folder at a time")
                   .arg(QDir::toNativeSeparators(folder),
                        known ? QString(" (process %1)").arg(pid) : QString());
}
