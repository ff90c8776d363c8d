#pragma once
// A plan whose set-up stopped after the profile and before all its day rows were written: the
// missing rows written from the profile it did store, as the set-up would have written them.

#include <cstdint>
#include <filesystem>
#include <string>

#include "store/Dates.h"

// The days of every plan the set-up makes.
inline constexpr int32_t kPlanDays = 366;

// Writes the day rows from the first missing one to the plan's last, in one transaction, labelled
// from the stored start on (now when it does not parse). Empty when done; otherwise why not.
std::string finishPlan(const std::filesystem::path& database, Instant now);
