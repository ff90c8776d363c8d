#pragma once
// Putting a plan back from a backup (or any plan file): checked first, the replaced file kept.

#include <filesystem>
#include <string>

#include "store/Dates.h"
#include "store/PlanCheck.h"

struct RestoreResult {
    PlanCheck check;             // the candidate as found; a fault there means it was refused
    std::string error;           // empty when food.db holds the candidate's plan
    std::filesystem::path kept;  // where the replaced food.db was kept; empty when there was none
    // What the app writes into its settings as "firstTime": the value the backup carried, or
    // "no" for a plan file without user defaults (its day rows say the set-up finished).
    std::string firstTime;

    bool ok() const { return error.empty(); }
};

// Replaces <dataFolder>/food.db, atomically, with a copy of candidate without its user defaults.
// A candidate that fails checkPlan is refused and nothing is changed. The food.db replaced, if
// any, is first kept in backups/ as food-before-restore-<now>.db, under a name of its own.
RestoreResult restore(const std::filesystem::path& candidate,
                      const std::filesystem::path& dataFolder, Instant now);
