#include "RatioReporter.h"

#include <cstdio>

namespace {
std::vector<Comparison>& comparisons() {
    static std::vector<Comparison> all;
    return all;
}
}  // namespace

void compare(Comparison comparison) { comparisons().push_back(std::move(comparison)); }

void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
        if (run.aggregate_name == "median")
            medians_[run.run_name.function_name] = run.GetAdjustedRealTime();
    }
}

bool RatioReporter::printRatios() const {
    bool allMet = true;
    std::printf("\n%-32s %-32s %8s %8s\n", "measured", "floor", "ratio", "target");
    for (const Comparison& c : comparisons()) {
        const auto measured = medians_.find(c.measured);
        const auto floor = medians_.find(c.floor);
        if (measured == medians_.end() || floor == medians_.end() || floor->second <= 0) continue;
        const double ratio = measured->second / floor->second;
        const bool met = ratio <= c.target;
        allMet = allMet && met;
        std::printf("%-32s %-32s %8.3f %8.2f %s\n", c.measured.c_str(), c.floor.c_str(), ratio,
                    c.target, met ? "ok" : "MISSED");
    }
    return allMet;
}
