#include "RatioReporter.h"

#include <cstdio>

namespace {
std::vector<Comparison>& comparisons() {
    static std::vector<Comparison> all;
    return all;
}
std::vector<Limit>& limits() {
    static std::vector<Limit> all;
    return all;
}
}  // namespace

void compare(Comparison comparison) { comparisons().push_back(std::move(comparison)); }
void limit(Limit l) { limits().push_back(std::move(l)); }

void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
        if (run.aggregate_name != "median") continue;
        Median& median = medians_[run.run_name.function_name];
        // Adjusted times are in the run's unit; milliseconds is what every target speaks.
        median.realMs =
            run.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(run.time_unit) * 1e3;
        for (const auto& [name, counter] : run.counters) median.counters[name] = counter.value;
    }
}

bool RatioReporter::printRatios() const {
    bool allMet = true;
    std::printf("\n%-28s %-28s %9s %8s\n", "measured", "floor", "ratio", "target");
    for (const Comparison& c : comparisons()) {
        const auto measured = medians_.find(c.measured);
        const auto floor = medians_.find(c.floor);
        if (measured == medians_.end() || floor == medians_.end() || floor->second.realMs <= 0)
            continue;
        const double ratio = measured->second.realMs / floor->second.realMs;
        const bool met = c.target <= 0 || ratio <= c.target;
        allMet = allMet && met;
        std::printf("%-28s %-28s %9.3f %8.2f %s\n", c.measured.c_str(), c.floor.c_str(), ratio,
                    c.target, c.target <= 0 ? "(no target)" : met ? "ok" : "MISSED");
    }
    for (const Limit& l : limits()) {
        const auto found = medians_.find(l.benchmark);
        if (found == medians_.end()) continue;
        const auto counter = found->second.counters.find(l.counter);
        const double value = l.counter.empty() ? found->second.realMs
                             : counter != found->second.counters.end() ? counter->second
                                                                       : -1;
        const bool met = value >= 0 && value <= l.most;
        allMet = allMet && met;
        const std::string what = l.counter.empty() ? "time" : l.counter;
        std::printf("%-28s %-28s %9.3g %8.3g %s %s\n", l.benchmark.c_str(), what.c_str(), value,
                    l.most, l.unit.c_str(), met ? "ok" : "MISSED");
    }
    return allMet;
}
