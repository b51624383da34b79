// What a benchmark program prints: one row of a Markdown table per figure, which ./dev bench collects, and one line for
// each limit that is exceeded.
#pragma once

#include <optional>
#include <string>

#include "PairedRuns.h"

namespace kzbench {

struct Figure {
    std::string name;
    std::string beside;           // what ran in turn with it
    std::optional<double> limit;  // the highest ratio of the two
    int parts = 1;                // of one run; times are given for a part
};

// The cells of a row that is not a comparison of times.
struct Quantity {
    std::string name;
    std::string value;
    std::string beside{};
    std::string besideValue{};
    std::string limit{};
    bool within = true;
};

class Report {
public:
    // Prints both medians, their ratio, the quartiles of the ratios pair by pair, and the limit.
    void Add(const Figure& figure, const PairedTimes& times);
    void Add(const Quantity& quantity);

    // What main returns: 1 when a limit was exceeded.
    [[nodiscard]] int ExitCode() const noexcept { return m_within ? 0 : 1; }

private:
    bool m_within = true;
};

[[nodiscard]] double Median(const std::vector<double>& values);

// "380 KB"
[[nodiscard]] std::string Kilobytes(double bytes);

}  // namespace kzbench
