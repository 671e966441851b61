#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <vector>

inline double secondsOf(const std::function<void()>& work)
{
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    work();
    return std::chrono::duration<double>(Clock::now() - start).count();
}

inline void reportRatio(benchmark::State& state, double ours, double baseline)
{
    state.counters["ratio"] = ours / baseline;
    state.counters["ours_ms"] = ours * 1e3;
    state.counters["baseline_ms"] = baseline * 1e3;
}

/**
 * Times ours and the baseline in turns, keeps the best of each, and reports their ratio; short work takes many turns.
 * Each is called after @p prepare, which is not timed.
 */
inline void compare(
    benchmark::State& state, const std::function<void()>& ours, const std::function<void()>& baseline,
    const std::function<void()>& prepare = [] {})
{
    constexpr int LeastRounds = 4;
    constexpr double LeastSeconds = 0.3;
    double best = 1e9;
    double bestBaseline = 1e9;
    for (auto _ : state) {
        double spent = 0;
        for (int round = 0; round < LeastRounds || spent < LeastSeconds; ++round) {
            prepare();
            const double baselineSeconds = secondsOf(baseline);
            prepare();
            const double seconds = secondsOf(ours);
            bestBaseline = std::min(bestBaseline, baselineSeconds);
            best = std::min(best, seconds);
            spent += baselineSeconds + seconds;
        }
        state.SetIterationTime(best);
    }
    reportRatio(state, best, bestBaseline);
}

/**
 * Times ours and the baseline in turns, once in each iteration, and reports the ratio of their medians: for work that
 * takes as long as a frame, where the machine has time to do something else in between.
 */
inline void compareMedians(benchmark::State& state, const std::function<void()>& ours,
                           const std::function<void()>& baseline)
{
    std::vector<double> times;
    std::vector<double> baselineTimes;
    for (auto _ : state) {
        baselineTimes.push_back(secondsOf(baseline));
        times.push_back(secondsOf(ours));
        state.SetIterationTime(times.back());
    }
    const auto median = [](std::vector<double>& values) {
        const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
        std::nth_element(values.begin(), middle, values.end());
        return *middle;
    };
    reportRatio(state, median(times), median(baselineTimes));
}
