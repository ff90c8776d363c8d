#pragma once
// One running program per data folder: two that share food.db and the user defaults would
// interleave the set-up's rows and each other's writes.

#include <QLockFile>
#include <QString>

class DataFolderLock {
public:
    // Takes the lock file in folder (creating the folder) for as long as this object lives.
    explicit DataFolderLock(const QString& folder);

    // The message for the person when another running program holds the folder; empty when the
    // lock is ours, or when the folder cannot hold a lock file at all (the program then goes on
    // as it always has and meets the folder's trouble where it always did).
    QString refusal() const { return refusal_; }

private:
    QLockFile lock_;
    QString refusal_;
};
