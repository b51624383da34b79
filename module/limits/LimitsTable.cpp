#include "LimitsTable.h"

#include <string_view>

namespace zep {
namespace {

constexpr LimitVariable Named(std::wstring_view name, std::size_t fieldCount)
{
    LimitVariable variable{{}, fieldCount};
    for (std::size_t i = 0; i < name.size(); ++i)
        variable.name[i] = name[i];
    return variable;
}

constexpr std::array<LimitVariable, PowerLimitCount> PowerVariables{
    Named(L"PF", LimitFieldCount),
    Named(L"AP", UpperLimitFields),
    Named(L"RP", UpperLimitFields),
    Named(L"VA", UpperLimitFields),
};

// "ARM", the order, "A" for current, the side's letter: ARM1AN to ARM25AN.
constexpr LimitVariable HarmonicVariable(int order, wchar_t sideLetter)
{
    LimitVariable variable = Named(L"ARM", UpperLimitFields);
    std::size_t end = 3;
    if (order >= 10)
        variable.name[end++] = static_cast<wchar_t>(L'0' + order / 10);
    variable.name[end++] = static_cast<wchar_t>(L'0' + order % 10);
    variable.name[end++] = L'A';
    variable.name[end] = sideLetter;
    return variable;
}

constexpr std::array<LimitVariable, HarmonicRowCount> HarmonicVariables(wchar_t sideLetter)
{
    std::array<LimitVariable, HarmonicRowCount> variables{};
    for (std::size_t row = 0; row < HarmonicRowCount; ++row)
        variables[row] = HarmonicVariable(HarmonicOrder(static_cast<int>(row)), sideLetter);
    return variables;
}

constexpr auto NetVariables = HarmonicVariables(L'N');
constexpr auto LoadVariables = HarmonicVariables(L'L');

constexpr LimitsTable NetLimits{NetVariables, L"0", L"1", LimitSaving::WhenModified};
constexpr LimitsTable LoadLimits{LoadVariables, L"0", L"1", LimitSaving::WhenModified};

}  // namespace

constexpr LimitsTable PowerLimitsTable{PowerVariables, L"0.0", L"1.0", LimitSaving::Always};

const LimitsTable& HarmonicLimitsTable(Side side) noexcept
{
    return side == Side::Net ? NetLimits : LoadLimits;
}

}  // namespace zep
