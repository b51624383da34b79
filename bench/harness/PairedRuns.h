// Runs an operation and its floor, the least that any code would have to do for it, in turn, so that a change of the
// machine's speed meets both.
#pragma once

#include <algorithm>
#include <chrono>
#include <type_traits>
#include <vector>

namespace kzbench {

// Milliseconds that one run took, pair by pair.
struct PairedTimes {
    std::vector<double> operation;
    std::vector<double> floor;
};

// Makes the compiler believe that a result is used.
template <class Value>
inline void Keep(const Value& value)
{
    asm volatile("" : : "r"(&value) : "memory");
}

struct Nothing {
    void operator()() const noexcept {}
};

template <class Operation>
double Milliseconds(Operation& operation, int repeats)
{
    const auto start = std::chrono::steady_clock::now();
    for (int repeat = 0; repeat < repeats; ++repeat)
        operation();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count() / repeats;
}

// What is over sooner is repeated for this long: enough for the clock, and too short to be interrupted each time.
inline constexpr double SampleMilliseconds = 0.2;

// How long all pairs together take at least, and how many there are. What takes seconds is run as often as a long
// budget allows.
inline constexpr double BudgetMilliseconds = 1500;
inline constexpr double LongBudgetMilliseconds = 12000;
inline constexpr std::size_t FewestLongPairs = 5;
inline constexpr std::size_t FewestPairs = 25;
inline constexpr std::size_t MostPairs = 2000;

inline bool IsEnough(std::size_t pairs, double spent)
{
    if (pairs >= FewestPairs)
        return spent >= BudgetMilliseconds || pairs >= MostPairs;
    return pairs >= FewestLongPairs && spent >= LongBudgetMilliseconds;
}

// The first pair warms up and does not count; afterwards the two take turns in going first. With prepare(), which is
// not timed, there is no repeating: it precedes every single run.
template <class Operation, class Floor, class Prepare = Nothing>
PairedTimes RunInTurn(Operation operation, Floor floor, Prepare prepare = {})
{
    prepare();
    Milliseconds(operation, 1);
    prepare();
    const double once = Milliseconds(floor, 1);
    const bool repeatable = std::is_same_v<Prepare, Nothing> && once < SampleMilliseconds;
    const int repeats = repeatable ? static_cast<int>(std::min(SampleMilliseconds / once, 1e5)) : 1;

    PairedTimes times;
    const auto run = [&](auto& timed, std::vector<double>& into) {
        prepare();
        into.push_back(Milliseconds(timed, repeats));
    };
    double spent = 0;
    while (!IsEnough(times.floor.size(), spent)) {
        const bool operationFirst = times.floor.size() % 2 == 0;
        if (operationFirst)
            run(operation, times.operation);
        run(floor, times.floor);
        if (!operationFirst)
            run(operation, times.operation);
        spent += (times.operation.back() + times.floor.back()) * repeats;
    }
    return times;
}

}  // namespace kzbench
