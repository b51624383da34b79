#include "VariableName.h"

namespace zep {
namespace {

constexpr wchar_t Digit(int value) noexcept
{
    return static_cast<wchar_t>(L'0' + value);
}

void AppendHarmonic(std::wstring& text, const VariablePosition& position)
{
    const int order = HarmonicOrder(position.row);
    text += L"ARM";
    if (order >= 10)
        text += Digit(order / 10);
    text += Digit(order % 10);
    text += L'A';
    text += Digit(position.phase + 1);
}

void AppendQuantity(std::wstring& text, std::wstring_view code, const VariablePosition& position, bool hasPhase)
{
    text += code;
    text += L'I';
    if (hasPhase)
        text += Digit(position.phase + 1);
}

}  // namespace

void AppendVariableName(std::wstring& text, Family family, const VariablePosition& position)
{
    const auto row = static_cast<std::size_t>(position.row);
    switch (family) {
    case Family::Harmonic:
        AppendHarmonic(text, position);
        break;
    case Family::General:
        AppendQuantity(text, GeneralCodes[row], position, position.row != FrequencyRow);
        break;
    case Family::Power:
        AppendQuantity(text, PowerCodes[row], position, true);
        break;
    }
    text += position.side == Side::Net ? L'N' : L'L';
}

}  // namespace zep
