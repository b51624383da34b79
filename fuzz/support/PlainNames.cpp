#include "PlainNames.h"

#include <string>

namespace fuzzing {
namespace {

using zep::Side;
using zep::VariablePosition;

// What stands at the front of a name, taken off piece by piece.
class Reader {
public:
    explicit Reader(std::wstring_view name) noexcept : m_rest(name) {}

    bool Take(std::wstring_view text) noexcept
    {
        if (m_rest.substr(0, text.size()) != text)
            return false;
        m_rest = m_rest.substr(text.size());
        return true;
    }

    // The index of the character in front in a text of choices, taken off in any case; -1 when it is none of them.
    int TakeOneOf(std::wstring_view choices) noexcept
    {
        if (m_rest.empty())
            return -1;
        const std::size_t index = choices.find(m_rest.front());
        m_rest = m_rest.substr(1);
        return index == std::wstring_view::npos ? -1 : static_cast<int>(index);
    }

    [[nodiscard]] bool IsDigitNext() const noexcept
    {
        return !m_rest.empty() && std::wstring_view(L"0123456789").find(m_rest.front()) != std::wstring_view::npos;
    }

private:
    std::wstring_view m_rest;
};

std::optional<VariablePosition> PhaseAndSide(int row, Reader& name)
{
    const int phase = name.TakeOneOf(L"123");
    const int side = name.TakeOneOf(L"NL");
    if (phase < 0 || side < 0)
        return std::nullopt;
    return VariablePosition{row, phase, side == 0 ? Side::Net : Side::Load};
}

std::optional<VariablePosition> ReadHarmonic(Reader name)
{
    if (!name.Take(L"ARM") || !name.IsDigitNext())
        return std::nullopt;
    int order = name.TakeOneOf(L"0123456789");
    if (name.IsDigitNext())
        order = order * 10 + name.TakeOneOf(L"0123456789");
    const int row = (order - 1) / 2;
    if (row > 12 || !name.Take(L"A"))
        return std::nullopt;
    return PhaseAndSide(row, name);
}

std::optional<VariablePosition> ReadFrequency(Reader name)
{
    const int phase = name.TakeOneOf(L"123");
    const int side = name.TakeOneOf(L"NL");
    return VariablePosition{1, phase < 0 ? 0 : phase, side == 1 ? Side::Load : Side::Net};
}

std::optional<VariablePosition> ReadGeneral(Reader name)
{
    if (name.Take(L"VI"))
        return PhaseAndSide(0, name);
    if (name.Take(L"HZI"))
        return ReadFrequency(name);
    if (name.Take(L"AI"))
        return PhaseAndSide(2, name);
    if (name.Take(L"DAI"))
        return PhaseAndSide(3, name);
    return std::nullopt;
}

std::optional<VariablePosition> ReadPower(Reader name)
{
    int row = 0;
    for (const std::wstring_view start : {L"API", L"RPI", L"VAI", L"PFI"}) {
        if (name.Take(start))
            return PhaseAndSide(row, name);
        ++row;
    }
    return std::nullopt;
}

}  // namespace

std::optional<zep::VariablePosition> ReadName(zep::Family family, std::wstring_view name)
{
    switch (family) {
    case zep::Family::Harmonic:
        return ReadHarmonic(Reader(name));
    case zep::Family::Power:
        return ReadPower(Reader(name));
    case zep::Family::General:
        break;
    }
    return ReadGeneral(Reader(name));
}

}  // namespace fuzzing
