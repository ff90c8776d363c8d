#pragma once
// The plan's days as a CSV file for a spreadsheet (RFC 4180, UTF-8, CRLF line ends), one row per
// day: day,date,label,consumed,burned,budget,remaining.

#include <cstdint>
#include <filesystem>
#include <string>

struct ExportResult {
    std::string error;  // empty when the file was written; otherwise why not, for the person
    int64_t days = 0;   // the rows written below the header

    bool ok() const { return error.empty(); }
};

// Reads database and writes csv whole or not at all, replacing an earlier export. Works for any
// plan the file holds at all: running, ended, or without a start that parses (the dates are then
// left empty) or without a profile (budget and remaining left empty).
ExportResult exportPlan(const std::filesystem::path& database, const std::filesystem::path& csv);
