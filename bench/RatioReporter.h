#pragma once
// Machines here are noisy, so every figure is a ratio against a floor measured in the same run:
// each measured benchmark names its floor, and the reporter prints median(measured) / median(floor).

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

struct Comparison {
    std::string measured;  // benchmark name, e.g. "BM_StoreInserts"
    std::string floor;     // e.g. "BM_BareSqliteInserts"
    double target;         // the largest acceptable ratio
};

// Registers a comparison for the final report.
void compare(Comparison comparison);

class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override;
    // Prints one line per comparison; returns false when a target is missed.
    bool printRatios() const;

private:
    std::map<std::string, double> medians_;  // real time, by base benchmark name
};
