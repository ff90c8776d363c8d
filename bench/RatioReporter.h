#pragma once
// Machines here are noisy, so every figure is a ratio against a floor measured in the same run:
// each measured benchmark names its floor, and the reporter prints median(measured) /
// median(floor). Absolute limits (start-up time, memory) are printed beside them.

#include <benchmark/benchmark.h>

#include <map>
#include <set>
#include <string>
#include <vector>

struct Comparison {
    std::string measured;  // benchmark name, e.g. "BM_StoreInserts"
    std::string floor;     // e.g. "BM_BareSqliteInserts"
    double target;         // the largest acceptable ratio; 0: printed for information only
    // User counters compared instead of the real times, e.g. a series' last calls against its
    // first ones in the same benchmark.
    std::string measuredCounter = {};
    std::string floorCounter = {};
};

struct Limit {
    std::string benchmark;
    std::string counter;  // a user counter of the benchmark, or "" for its real time
    double most;          // in the counter's unit, or milliseconds for the real time
    std::string unit;
};

// Register what the final report prints.
void compare(Comparison comparison);
void limit(Limit limit);

class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override;
    // Prints one line per comparison and limit; returns false when a target is missed.
    bool printRatios() const;

private:
    struct Median {
        double realMs = 0;
        std::map<std::string, double> counters;
        // The real time for "", a counter's value otherwise; negative when there is none.
        double value(const std::string& counter) const;
    };
    std::map<std::string, Median> medians_;  // by base benchmark name
    std::set<std::string> failed_;           // benchmarks that reported an error
};
