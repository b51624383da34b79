#include "Report.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <initializer_list>

namespace kzbench {
namespace {

struct Quartiles {
    double lower;
    double median;
    double upper;
};

Quartiles QuartilesOf(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const auto at = [&values](std::size_t quarters) { return values[(values.size() - 1) * quarters / 4]; };
    return {at(1), at(2), at(3)};
}

std::string Format(const char* format, double value)
{
    std::array<char, 64> text;
    std::snprintf(text.data(), text.size(), format, value);
    return text.data();
}

std::string ThreeDigits(double value, const char* unit)
{
    return Format(value < 10 ? "%.2f " : value < 100 ? "%.1f " : "%.0f ", value) + unit;
}

std::string Duration(double milliseconds)
{
    if (milliseconds >= 1)
        return ThreeDigits(milliseconds, "ms");
    return milliseconds >= 1e-3 ? ThreeDigits(milliseconds * 1e3, "µs") : ThreeDigits(milliseconds * 1e6, "ns");
}

// Columns line up in a terminal too. UTF-8's continuation bytes take no place.
std::string Padded(const std::string& text, std::size_t width)
{
    const auto shown = static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
    return text + std::string(shown < width ? width - shown : 0, ' ');
}

void PrintRow(const std::array<std::string, 7>& cells)
{
    constexpr std::array<std::size_t, 7> widths{58, 8, 46, 8, 5, 11, 8};
    std::string row = "|";
    for (std::size_t cell = 0; cell < cells.size(); ++cell)
        row.append(" ").append(Padded(cells[cell], widths[cell])).append(" |");
    std::puts(row.c_str());
}

void PrintExcess(const std::string& name, const std::string& value, const std::string& limit)
{
    std::printf("OVER ITS LIMIT: %s: %s, limit %s\n", name.c_str(), value.c_str(), limit.c_str());
}

}  // namespace

void Report::Add(const Figure& figure, const PairedTimes& times)
{
    std::vector<double> ratios;
    for (std::size_t pair = 0; pair < times.floor.size(); ++pair)
        ratios.push_back(times.operation[pair] / times.floor[pair]);
    const double operation = QuartilesOf(times.operation).median;
    const double floor = QuartilesOf(times.floor).median;
    const double ratio = operation / floor;
    const Quartiles spread = QuartilesOf(ratios);
    const std::string limit = figure.limit ? Format("≤ %.2f", *figure.limit) : "";
    PrintRow({figure.name, Duration(operation / figure.parts), figure.beside, Duration(floor / figure.parts),
              Format("%.2f", ratio), Format("%.2f–", spread.lower) + Format("%.2f", spread.upper), limit});
    if (figure.limit && ratio > *figure.limit) {
        PrintExcess(figure.name, Format("%.3f", ratio), limit);
        m_within = false;
    }
    std::fflush(stdout);
}

void Report::Add(const Quantity& quantity)
{
    PrintRow({quantity.name, quantity.value, quantity.beside, quantity.besideValue, "", "", quantity.limit});
    if (!quantity.within) {
        PrintExcess(quantity.name, quantity.value, quantity.limit);
        m_within = false;
    }
    std::fflush(stdout);
}

double Median(const std::vector<double>& values)
{
    return QuartilesOf(values).median;
}

std::string Kilobytes(double bytes)
{
    return Format("%.0f KB", bytes / 1024);
}

}  // namespace kzbench
