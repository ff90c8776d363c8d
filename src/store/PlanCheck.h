#pragma once
// What is wrong with a plan file, found without changing it, and whether its plan has ended: the
// facts behind the app's messages at start, on the command line and before a restore.

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

#include "store/Dates.h"

enum class PlanFault {
    none,
    missing,          // nothing at the path
    notAFile,         // a folder, or something else that is not a regular file
    empty,            // no bytes: SQLite would take it for a new database without tables
    unreadable,       // the file cannot be opened or read; detail: the reason
    damaged,          // not a database, or one that fails its integrity check; detail: SQLite's
    tableMissing,     // table: the one missing
    columnMissing,    // table, detail: the column the program reads that is not there
    columnMisplaced,  // table, detail: a column that is there but not where it is read
    locked,           // another connection held its lock past the wait
    noProfile,        // fewer than two profileData rows: the live profile is the second one
    setUpUnfinished,  // a profile but no day rows
};

// What the app's messages say about a plan, as far as the file could be read.
struct PlanFacts {
    std::optional<Instant> start;  // empty when the starting date does not parse
    int64_t days = 0;              // dailyData rows with an id of 0 or more
    int32_t budget = 0;            // the leading integer of calorieBudget, as the app reads it
    bool hasProfile = false;
};

struct PlanCheck {
    PlanFault fault = PlanFault::none;
    std::filesystem::path path;
    std::string table;
    std::string detail;
    PlanFacts facts;

    bool ok() const { return fault == PlanFault::none; }
    // Plain and without a trailing period: "the table dailyData is missing".
    std::string text() const;
};

// How long the checks wait for another connection's lock: as long as the store does.
inline constexpr std::chrono::milliseconds kPlanLockWait{5000};

// Looks at file with SQLite read-only. The one exception is a write cut short (a hot journal
// beside the file): that is undone, as the store's next open would undo it, so that what is
// checked is the plan as the app will see it.
PlanCheck checkPlan(const std::filesystem::path& file,
                    std::chrono::milliseconds lockWait = kPlanLockWait);

struct PlanEnd {
    std::string lastDay;  // yyyy-MM-dd of the plan's last day in the default time zone
    int64_t today = 0;    // 1-based number of today's day of the plan
    int64_t days = 0;

    // "the plan ended on 2026-11-14 (today is day 367 of 366)"
    std::string text() const;
};

// Set once today's day, counted as the app counts it, is past the last day row. Empty while
// the plan runs, when it has no days, or when its start does not parse (the app then stays on
// the first day).
std::optional<PlanEnd> planEnded(const PlanFacts& facts, Instant now);
