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

double RatioReporter::Median::value(const std::string& counter) const {
    if (counter.empty()) return realMs;
    const auto found = counters.find(counter);
    return found == counters.end() ? -1 : found->second;
}

void compare(Comparison comparison) {
    comparisons().push_back(std::move(comparison));
}
void limit(Limit l) {
    limits().push_back(std::move(l));
}

void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
        if (run.error_occurred) failed_.insert(run.run_name.function_name);
        // A benchmark run once takes its medians itself (e.g. of many process starts).
        const bool single = run.run_type == Run::RT_Iteration && run.repetitions <= 1;
        if (run.aggregate_name != "median" && !single) continue;
        Median& median = medians_[run.run_name.function_name];
        // Adjusted times are in the run's unit; milliseconds is what every target speaks.
        median.realMs =
            run.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(run.time_unit) * 1e3;
        for (const auto& [name, counter] : run.counters) median.counters[name] = counter.value;
    }
}

bool RatioReporter::printRatios() const {
    bool allMet = true;
    std::printf("\n%-32s %-32s %9s %8s\n", "measured", "floor", "ratio", "target");
    const auto named = [](const std::string& name, const std::string& counter) {
        return counter.empty() ? name : name + " " + counter;
    };
    for (const Comparison& c : comparisons()) {
        if (failed_.contains(c.measured) || failed_.contains(c.floor)) {
            allMet = false;
            std::printf("%-32s %-32s %9s %8.2f FAILED\n",
                        named(c.measured, c.measuredCounter).c_str(),
                        named(c.floor, c.floorCounter).c_str(), "-", c.target);
            continue;
        }
        const auto measured = medians_.find(c.measured);
        const auto floor = medians_.find(c.floor);
        if (measured == medians_.end() || floor == medians_.end()) continue;
        const double floorValue = floor->second.value(c.floorCounter);
        if (floorValue <= 0) continue;
        const double ratio = measured->second.value(c.measuredCounter) / floorValue;
        const bool met = c.target <= 0 || ratio <= c.target;
        allMet = allMet && met;
        std::printf("%-32s %-32s %9.3f %8.2f %s\n", named(c.measured, c.measuredCounter).c_str(),
                    named(c.floor, c.floorCounter).c_str(), ratio, c.target,
                    c.target <= 0 ? "(no target)"
                    : met         ? "ok"
                                  : "MISSED");
    }
    for (const Limit& l : limits()) {
        const auto found = medians_.find(l.benchmark);
        if (found == medians_.end()) continue;
        const double value = found->second.value(l.counter);
        const bool met = value >= 0 && value <= l.most;
        allMet = allMet && met;
        const std::string what = l.counter.empty() ? "time" : l.counter;
        std::printf("%-32s %-32s %9.3g %8.4g %s %s\n", l.benchmark.c_str(), what.c_str(), value,
                    l.most, l.unit.c_str(), met ? "ok" : "MISSED");
    }
    return allMet;
}
