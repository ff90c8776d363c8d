#pragma once
// Real plan files and real faults for the tests of checking, exporting, backing up and restoring:
// files damaged the ways disks and people damage them, another connection's lock, and disks that
// are full or read-only, made in a child process so that nothing outlives the test.

#include <sqlite3.h>

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>

#include "store/Dates.h"

// The start of the plans made here: day 366 begins 2026-11-14 09:30 UTC.
inline const Instant kPlanStart = std::chrono::sys_days(std::chrono::year{2025} / 11 / 14) +
                                  std::chrono::hours(9) + std::chrono::minutes(30);

// A copy of the shipped food.db after a finished set-up: budget 1850 and `days` day rows.
std::string makePlan(const std::filesystem::path& path, int days = 366);

enum class Damage {
    deleted,
    emptied,
    junk,           // 8 KiB of bytes that are no database
    cutShort,       // the second half gone, as after a copy that ran out of room
    pageScrambled,  // one page of the food table overwritten with junk
    folderInPlace,
    tableDropped,   // dailyData
    columnDropped,  // food.unit
    noProfile,      // the live profile row deleted
    noDays,         // the set-up stopped before the day rows
};
void damage(const std::filesystem::path& path, Damage damage);

// Another program's connection holding a lock (e.g. "BEGIN EXCLUSIVE") until it is destroyed.
using HeldLock = std::unique_ptr<sqlite3, void (*)(sqlite3*)>;
HeldLock holdLock(const std::filesystem::path& path, const char* begin);

// Every file under folder by relative name, with its bytes; folders as "<folder>".
std::map<std::string, std::string> snapshot(const std::filesystem::path& folder);

// Runs body in a forked child and returns its exit status, or 128 + the signal that ended it.
int inChild(const std::function<int()>& body);

// Exit status of a child whose fault could not be made here (no mount rights): the test skips.
inline constexpr int kCannotMakeFault = 77;

// In the calling child only, in a mount namespace of its own: folder becomes a tmpfs of `bytes`,
// or read-only. False when this system does not allow it.
bool mountSmallDisk(const std::filesystem::path& folder, size_t bytes);
bool mountReadOnly(const std::filesystem::path& folder);
// Fills folder's file system until no byte is left.
void fillDisk(const std::filesystem::path& folder);

// The first column of a query, joined by "|" for compact comparisons.
std::string queryJoined(const std::filesystem::path& path, const char* sql);
