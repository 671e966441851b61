#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <functional>

inline double secondsOf(const std::function<void()>& work)
{
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    work();
    return std::chrono::duration<double>(Clock::now() - start).count();
}

/**
 * Times ours and the baseline in turns, keeps the best of each, and reports their ratio. Each is called after
 * @p prepare, which is not timed.
 */
inline void compare(
    benchmark::State& state, const std::function<void()>& ours, const std::function<void()>& baseline,
    const std::function<void()>& prepare = [] {})
{
    constexpr int Rounds = 4;
    double best = 1e9;
    double bestBaseline = 1e9;
    for (auto _ : state) {
        for (int round = 0; round < Rounds; ++round) {
            prepare();
            bestBaseline = std::min(bestBaseline, secondsOf(baseline));
            prepare();
            best = std::min(best, secondsOf(ours));
        }
        state.SetIterationTime(best);
    }
    state.counters["ratio"] = best / bestBaseline;
    state.counters["ours_ms"] = best * 1e3;
    state.counters["baseline_ms"] = bestBaseline * 1e3;
}
