// Parsing of variable names, one function per family. They stand in a header because a host list may hold a million
// names: inlined, a parse costs what a hand-written loop costs.
#pragma once

#include <optional>
#include <string_view>

#include "VariableName.h"

namespace zep::parser {

// The value of a decimal digit; 10 or more for any other character.
constexpr unsigned DigitOf(wchar_t character) noexcept
{
    return static_cast<unsigned>(character) - static_cast<unsigned>(L'0');
}

constexpr bool IsSide(wchar_t character) noexcept
{
    return character == L'N' || character == L'L';
}

constexpr Side SideOf(wchar_t character) noexcept
{
    return character == L'L' ? Side::Load : Side::Net;
}

// Reads "<phase><side>" at an index; the name must be long enough.
constexpr std::optional<VariablePosition> PhaseAndSide(int row, std::wstring_view name, std::size_t index) noexcept
{
    const unsigned phase = DigitOf(name[index]) - 1;
    if (phase >= PhaseCount || !IsSide(name[index + 1]))
        return std::nullopt;
    return VariablePosition{row, static_cast<int>(phase), SideOf(name[index + 1])};
}

constexpr std::optional<VariablePosition> ParseHarmonic(std::wstring_view name) noexcept
{
    constexpr std::size_t shortest = 7;
    if (name.size() < shortest || name[0] != L'A' || name[1] != L'R' || name[2] != L'M')
        return std::nullopt;

    unsigned order = DigitOf(name[3]);
    if (order > 9)
        return std::nullopt;
    std::size_t next = 4;
    if (const unsigned digit = DigitOf(name[next]); digit <= 9) {
        if (name.size() == shortest)
            return std::nullopt;
        order = 10 * order + digit;
        ++next;
    }

    // An even order counts as the odd order just below it, and order 0 as the fundamental.
    const unsigned row = order == 0 ? 0 : (order - 1) / 2;
    if (row >= HarmonicRowCount || name[next] != L'A')
        return std::nullopt;
    return PhaseAndSide(static_cast<int>(row), name, next + 1);
}

// There is one frequency, so its name needs neither phase nor side: what is not a phase or side is the first phase,
// net.
constexpr VariablePosition FrequencyPosition(std::wstring_view name, std::size_t index) noexcept
{
    const unsigned phase = index < name.size() ? DigitOf(name[index]) - 1 : 0;
    const Side side = index + 1 < name.size() ? SideOf(name[index + 1]) : Side::Net;
    return {FrequencyRow, phase < PhaseCount ? static_cast<int>(phase) : 0, side};
}

// The row whose code opens the name; no code of a family opens another one with the separator behind it.
constexpr std::optional<VariablePosition> ParseQuantity(const std::array<std::wstring_view, QuantityRowCount>& codes,
                                                        bool hasFrequency, std::wstring_view name) noexcept
{
    for (int row = 0; row < QuantityRowCount; ++row) {
        const std::wstring_view code = codes[static_cast<std::size_t>(row)];
        const std::size_t separator = code.size();
        if (name.size() <= separator || name[0] != code[0] || name[separator - 1] != code[separator - 1] ||
            name[separator] != L'I')
            continue;
        if (hasFrequency && row == FrequencyRow)
            return FrequencyPosition(name, separator + 1);
        if (name.size() < separator + 3)
            return std::nullopt;
        return PhaseAndSide(row, name, separator + 1);
    }
    return std::nullopt;
}

}  // namespace zep::parser

namespace zep {

constexpr std::optional<VariablePosition> ParseVariableName(Family family, std::wstring_view name) noexcept
{
    switch (family) {
    case Family::General:
        return parser::ParseQuantity(GeneralCodes, true, name);
    case Family::Power:
        return parser::ParseQuantity(PowerCodes, false, name);
    case Family::Harmonic:
        return parser::ParseHarmonic(name);
    }
    return std::nullopt;
}

constexpr std::optional<Variable> ParseVariableName(std::wstring_view name) noexcept
{
    for (const Family family : {Family::Harmonic, Family::Power, Family::General}) {
        if (const auto position = ParseVariableName(family, name))
            return Variable{family, *position};
    }
    return std::nullopt;
}

}  // namespace zep
