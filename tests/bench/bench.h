// What the benchmarks share: times in milliseconds, medians of actions that take turns, and a line
// for them.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <vector>

inline void Require(bool done, const char* what) {
    if (done) return;
    std::printf("failed: %s\n", what);
    std::exit(1);
}

inline double Time(const std::function<void()>& action) {
    const auto begin = std::chrono::steady_clock::now();
    action();
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - begin;
    return time.count();
}

struct Medians {
    double one, other;
};

// Of two measurements that take turns.
inline Medians Compare(const std::function<double()>& one, const std::function<double()>& other,
                       std::size_t rounds = 5) {
    std::vector<double> times[2];
    for (std::size_t round = 0; round < rounds; ++round) {
        times[0].push_back(one());
        times[1].push_back(other());
    }
    for (std::vector<double>& list : times) std::sort(list.begin(), list.end());
    return {times[0][rounds / 2], times[1][rounds / 2]};
}

inline void Print(const char* one, const char* other, Medians times, int in = 1) {
    std::printf("%s: %.2f ms, %s: %.2f ms; the first takes %.2f times as long\n", one,
                times.one / in, other, times.other / in, times.one / times.other);
}
