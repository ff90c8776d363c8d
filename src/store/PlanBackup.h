#pragma once
// Copies of the plan's file that hold everything a plan needs: the database, taken consistently
// while the app may be writing to it, and the user-defaults value that says the set-up is done.
// Every function opens its own connections and shares nothing: any thread may call them.

#include <filesystem>
#include <optional>
#include <string>

#include "store/Dates.h"

struct BackupResult {
    std::string error;           // empty when done; otherwise why not, for the person
    std::filesystem::path file;  // the copy made; empty when none was needed

    bool ok() const { return error.empty(); }
};

// Copies fromDb to toFile, replacing it. The copy also holds the user defaults the plan needs, in
// a table userDefaults (key, value) with the row ("firstTime", firstTime), which the live file
// never has. It passes SQLite's integrity check or is not made.
BackupResult backup(const std::filesystem::path& fromDb, const std::filesystem::path& toFile,
                    const std::string& firstTime);

// <dataFolder>/backups: the automatic backups and the files kept before a restore.
std::filesystem::path backupFolder(const std::filesystem::path& dataFolder);

// The automatic backup: at most one per calendar day of today (default time zone), named
// food-yyyy-MM-dd.db. Keeps the newest seven of those and deletes only older ones of that name.
BackupResult backupDaily(const std::filesystem::path& dataFolder,
                         const std::filesystem::path& fromDb, const std::string& firstTime,
                         Instant today);

// The newest automatic backup, if there is one.
std::optional<std::filesystem::path> latestBackup(const std::filesystem::path& dataFolder);
