#pragma once
// Test fixtures that use the real things: folders on disk, the real log, ICU's zone and clock.

#include <algorithm>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "store/Dates.h"

// Each fixture undoes on destruction what it set up: none can be copied.
struct NoCopy {
    NoCopy() = default;
    NoCopy(const NoCopy&) = delete;
    NoCopy& operator=(const NoCopy&) = delete;
};

// A fresh folder under the system's temporary folder, removed with everything in it.
class TempDir : NoCopy {
public:
    TempDir();
    ~TempDir();
    const std::filesystem::path& path() const { return path_; }
    std::string file(std::string_view name) const { return (path_ / name).string(); }

private:
    std::filesystem::path path_;
};

// Switches the developer log on and collects its lines for as long as it lives.
class LogCapture : NoCopy {
public:
    LogCapture();
    ~LogCapture();
    const std::vector<std::string>& lines() const { return lines_; }
    bool contains(std::string_view line) const { return count(line) > 0; }
    size_t count(std::string_view line) const {
        return std::count(lines_.begin(), lines_.end(), line);
    }

private:
    std::vector<std::string> lines_;
};

// Makes an ICU time zone the default for as long as it lives.
class ScopedTimeZone : NoCopy {
public:
    explicit ScopedTimeZone(const char* id);
    ~ScopedTimeZone();

private:
    std::string previous_;
};

// Fixes Clock::now() for as long as it lives.
class FixedClock : NoCopy {
public:
    explicit FixedClock(Instant now);
    ~FixedClock();

private:
    Instant now_;
};

// "2026-11-15 09:30:00" read as UTC.
Instant utc(const char* text);

// Runs statements on a SQLite file (creating it), failing the test on an error.
void execSql(const std::string& path, const char* sql);
// The first column of every row of a query, as text.
std::vector<std::string> queryColumn(const std::string& path, const char* sql);
// A file's bytes; empty when it cannot be read.
std::string bytesOf(const std::filesystem::path& file);
// Day id's consumed and burned calories as the file holds them, "consumed burned"; empty when
// there is no such day.
std::string dayInFile(const std::string& path, int64_t id);

// A plan as set-up leaves it in a copy of the shipped food.db: the budget and starting date in
// the profile row, and day rows 0 to days - 1 labelled "EEEE MMMM d", nothing booked.
void writePlan(const std::string& path, Instant start, const char* budget, int days);
