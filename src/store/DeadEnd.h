#pragma once
// Why a start on a finished set-up cannot show the plan, found before anything is drawn, and the
// ways out that apply: the cause named as it is (a damaged file, a missing table, another
// program's lock, the plan's end, a set-up that stopped halfway), not as the first record that
// could not be read.

#include <filesystem>
#include <optional>
#include <string>

#include "store/Dates.h"

struct DeadEnd {
    std::string cause;        // "the plan in … ended on 2026-11-14 (today is day 367 of 366)"
    bool canExport = false;   // its days can be read
    bool canRestore = false;  // there is an automatic backup
    bool setUpInterrupted = false;  // a profile but no days: the plan can be finished
    // Not while another program holds the file: waiting for it is the way out.
    bool canStartNew = true;

    // The message on a terminal: the cause and the options that do what the window offers.
    std::string forTerminal() const;
};

// Empty when the plan opens as it should. fileWasMissing: the start found no plan file, and the
// one now in its place is the catalogue copied afresh.
// dataFolder holds food.db and backups/.
std::optional<DeadEnd> findDeadEnd(const std::filesystem::path& dataFolder, Instant now,
                                   bool fileWasMissing = false);
