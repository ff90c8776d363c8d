#pragma once
// The times of single user actions within one repetition (each search pass, each keystroke),
// reported as the benchmark's manual time and as counters: their median and 99th percentile in
// milliseconds, which the targets speak.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <vector>

class PassTimes {
public:
    using Clock = std::chrono::steady_clock;

    void add(benchmark::State& state, Clock::duration taken) {
        const double seconds = std::chrono::duration<double>(taken).count();
        state.SetIterationTime(seconds);
        ms_.push_back(seconds * 1e3);
    }
    void report(benchmark::State& state) {
        if (ms_.empty()) return;
        std::sort(ms_.begin(), ms_.end());
        state.counters["median_ms"] = ms_[ms_.size() / 2];
        state.counters["p99_ms"] = ms_[std::min(ms_.size() - 1, ms_.size() * 99 / 100)];
    }

private:
    std::vector<double> ms_;
};
