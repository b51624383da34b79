#include "VariableName.h"

#include <algorithm>

namespace zep {
namespace {

constexpr std::wstring_view PhaseDigits = L"123";
static_assert(PhaseDigits.size() == PhaseCount);
constexpr wchar_t Separator = L'I';  // between a quantity's code and its phase

const std::array<std::wstring_view, QuantityRowCount>& CodesOf(Family family) noexcept
{
    return family == Family::General ? GeneralCodes : PowerCodes;
}

constexpr bool HasPhase(Family family, int row) noexcept
{
    return family != Family::General || row != FrequencyRow;
}

std::optional<int> PhaseAt(std::wstring_view text, std::size_t index) noexcept
{
    const auto phase = index < text.size() ? PhaseDigits.find(text[index]) : std::wstring_view::npos;
    return phase < PhaseDigits.size() ? std::optional(static_cast<int>(phase)) : std::nullopt;
}

std::optional<Side> SideAt(std::wstring_view text, std::size_t index) noexcept
{
    for (const Side side : Sides) {
        if (index < text.size() && text[index] == SideLetter(side))
            return side;
    }
    return std::nullopt;
}

// Reads "<phase><side>" at the start of a text.
std::optional<VariablePosition> PhaseAndSide(int row, std::wstring_view text) noexcept
{
    const auto phase = PhaseAt(text, 0);
    const auto side = SideAt(text, 1);
    return phase && side ? std::optional(VariablePosition{row, *phase, *side}) : std::nullopt;
}

// There is one frequency, so its name needs neither phase nor side: what is not a phase or side is the first phase,
// net.
VariablePosition FrequencyPosition(std::wstring_view text) noexcept
{
    return {FrequencyRow, PhaseAt(text, 0).value_or(0), SideAt(text, 1).value_or(Side::Net)};
}

std::optional<VariablePosition> ParseHarmonic(std::wstring_view name) noexcept
{
    constexpr std::wstring_view start = L"ARM";
    if (!name.starts_with(start))
        return std::nullopt;
    name.remove_prefix(start.size());

    int order = 0;
    std::size_t digits = 0;
    for (; digits < 2 && digits < name.size() && name[digits] >= L'0' && name[digits] <= L'9'; ++digits)
        order = 10 * order + (name[digits] - L'0');
    // An even order counts as the odd order just below it, and order 0 as the fundamental.
    const int row = (order - 1) / 2;
    name.remove_prefix(digits);
    if (digits == 0 || row >= HarmonicRowCount || !name.starts_with(L'A'))
        return std::nullopt;
    return PhaseAndSide(row, name.substr(1));
}

// The code is what stands before the separator, which no code holds.
std::optional<VariablePosition> ParseQuantity(Family family, std::wstring_view name) noexcept
{
    const std::size_t separator = name.find(Separator);
    const auto& codes = CodesOf(family);
    const auto code = std::find(codes.begin(), codes.end(), name.substr(0, separator));
    if (separator == std::wstring_view::npos || code == codes.end())
        return std::nullopt;
    const auto row = static_cast<int>(code - codes.begin());
    const std::wstring_view rest = name.substr(separator + 1);
    return HasPhase(family, row) ? PhaseAndSide(row, rest) : FrequencyPosition(rest);
}

}  // namespace

void AppendVariableName(std::wstring& text, Family family, const VariablePosition& position)
{
    if (family == Family::Harmonic)
        text += HarmonicCode(position.row);
    else
        (text += CodesOf(family)[static_cast<std::size_t>(position.row)]) += Separator;
    if (HasPhase(family, position.row))
        text += PhaseDigits[static_cast<std::size_t>(position.phase)];
    text += SideLetter(position.side);
}

std::optional<VariablePosition> ParseVariableName(Family family, std::wstring_view name) noexcept
{
    return family == Family::Harmonic ? ParseHarmonic(name) : ParseQuantity(family, name);
}

std::optional<Variable> ParseVariableName(std::wstring_view name) noexcept
{
    for (const Family family : {Family::Harmonic, Family::Power, Family::General}) {
        if (const auto position = ParseVariableName(family, name))
            return Variable{family, *position};
    }
    return std::nullopt;
}

}  // namespace zep
