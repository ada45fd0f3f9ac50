// What the benchmarks share: what an action takes, two that take turns, and rows of the table that
// tools/bench.py makes of what they print.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>

inline void Require(bool done, const char* what) {
    if (done) return;
    std::printf("failed: %s\n", what);
    std::exit(1);
}

// In milliseconds.
inline double Time(const std::function<void()>& action) {
    const auto begin = std::chrono::steady_clock::now();
    action();
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - begin;
    return time.count();
}

struct Pair {
    double ours, theirs;
};

// The best of two measurements that take turns: what disturbs one only ever adds to it.
inline Pair TakeTurns(const std::function<double()>& ours, const std::function<double()>& theirs,
                      int rounds = 7) {
    Pair best = {ours(), theirs()};
    for (int round = 1; round < rounds; ++round) {
        best.ours = std::min(best.ours, ours());
        best.theirs = std::min(best.theirs, theirs());
    }
    return best;
}

inline Pair TimeInTurns(const std::function<void()>& ours, const std::function<void()>& theirs,
                        int rounds = 7) {
    return TakeTurns([&] { return Time(ours); }, [&] { return Time(theirs); }, rounds);
}

constexpr double kNoAim = 0;

// A row: what it is, what we take, what a peer takes or the least that anybody could, and the ratio
// between them that is aimed at. The texts are plain ASCII without quotation marks.
inline void Report(const char* what, const char* unit, const char* beside, Pair pair,
                   double aim = kNoAim) {
    std::printf(
        "{\"what\": \"%s\", \"unit\": \"%s\", \"beside\": \"%s\", \"ours\": %.4f, \"theirs\": "
        "%.4f, \"aim\": %.2f}\n",
        what, unit, beside, pair.ours, pair.theirs, aim);
    std::fflush(stdout);
}
