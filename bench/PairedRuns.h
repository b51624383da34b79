// Times an operation beside its floor, the least that any code would have to do for it: the two run in turn, so that a
// change of the machine's speed meets both, and the medians are compared.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace kzbench {

// Milliseconds that one call takes.
template <class Operation>
double Milliseconds(Operation& operation)
{
    const auto start = std::chrono::steady_clock::now();
    operation();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

struct Spread {
    double lowest;
    double median;
    double highest;
};

inline Spread SpreadOf(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return {values.front(), values[values.size() / 2], values.back()};
}

// Runs both operations in turn and prints one line: the figure's name, both medians with their spread in ms, the median
// of the ratios pair by pair and the ratio that is aimed at. Each pair is preceded by prepare(), which is not timed.
// Returns whether the ratio is within its limit.
template <class Prepare, class Operation, class Floor>
bool Compare(const char* name, int pairs, double limit, Prepare prepare, Operation operation, Floor floor)
{
    std::vector<double> operations;
    std::vector<double> floors;
    std::vector<double> ratios;
    for (int pair = -1; pair < pairs; ++pair) {  // the first pair warms up
        prepare();
        const double floorTime = Milliseconds(floor);
        prepare();
        const double time = Milliseconds(operation);
        if (pair < 0)
            continue;
        operations.push_back(time);
        floors.push_back(floorTime);
        ratios.push_back(time / floorTime);
    }
    const Spread of = SpreadOf(operations);
    const Spread floorOf = SpreadOf(floors);
    const double ratio = SpreadOf(ratios).median;
    std::printf("%-44s %9.3f (%.3f-%.3f) %9.3f (%.3f-%.3f) %6.2f  %.2f %s\n", name, of.median, of.lowest, of.highest,
                floorOf.median, floorOf.lowest, floorOf.highest, ratio, limit, ratio <= limit ? "ok" : "OVER");
    std::fflush(stdout);
    return ratio <= limit;
}

inline void PrintHeading()
{
    std::printf("%-44s %25s %25s %6s  %s\n", "figure", "ms, median (lowest-highest)", "its floor", "ratio", "limit");
}

}  // namespace kzbench
