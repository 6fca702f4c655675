#pragma once

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <limits>
#include <utility>

using BenchClock = std::chrono::steady_clock;

inline double Nanoseconds(BenchClock::duration time) {
    return std::chrono::duration<double, std::nano>(time).count();
}

// What a call costs, in nanoseconds, and what another one of the same time does: the two take
// turns, so that a busy machine slows both down, and the best round of each counts.
struct Cost {
    static constexpr int kRounds = 40;

    template <class Call>
    static double Round(Call& call, int calls) {
        const auto begin = BenchClock::now();
        for (int i = 0; i < calls; ++i) call();
        return Nanoseconds(BenchClock::now() - begin) / calls;
    }

    template <class... Calls>
    static auto OfEach(int calls, Calls... call) {
        std::array<double, sizeof...(Calls)> best;
        best.fill(std::numeric_limits<double>::max());
        for (int round = 0; round < kRounds; ++round) {
            size_t which = 0;
            ((best[which] = std::min(best[which], Round(call, calls)), ++which), ...);
        }
        return best;
    }
};

// A figure that is counted, so that it is the same on any machine: another one than is wanted makes
// the program fail.
void ExpectFigure(const char* what, double figure, double wanted, double tolerance = 0);

// The main function of a benchmark program.
int RunFigures(int argc, char** argv);
