#include "NamesByHand.h"

#include <cwchar>
#include <regex>

namespace kzbench {
namespace {

int IndexOf(int order, int phase, wchar_t side)
{
    return static_cast<int>(
        zep::PositionIndex({(order - 1) / 2, phase - 1, side == L'L' ? zep::Side::Load : zep::Side::Net}));
}

}  // namespace

int ParseByScanf(const std::wstring& name)
{
    int order = 0;
    int phase = 0;
    wchar_t side = L'\0';
    return std::swscanf(name.c_str(), L"ARM%2dA%1d%lc", &order, &phase, &side) == 3 ? IndexOf(order, phase, side) : -1;
}

int ParseByRegex(const std::wstring& name)
{
    static const std::wregex pattern(L"ARM([0-9]{1,2})A([1-3])([NL])");
    std::wsmatch match;
    if (!std::regex_search(name, match, pattern, std::regex_constants::match_continuous))
        return -1;
    return IndexOf(std::stoi(match.str(1)), std::stoi(match.str(2)), *match[3].first);
}

int BuildByHand(wchar_t* buffer, const zep::VariablePosition& position) noexcept
{
    const int order = 2 * position.row + 1;
    wchar_t* next = buffer;
    *next++ = L'A';
    *next++ = L'R';
    *next++ = L'M';
    if (order >= 10)
        *next++ = static_cast<wchar_t>(L'0' + order / 10);
    *next++ = static_cast<wchar_t>(L'0' + order % 10);
    *next++ = L'A';
    *next++ = static_cast<wchar_t>(L'1' + position.phase);
    *next++ = position.side == zep::Side::Net ? L'N' : L'L';
    *next = L'\0';
    return static_cast<int>(next - buffer);
}

int BuildByPrintf(wchar_t* buffer, const zep::VariablePosition& position)
{
    return std::swprintf(buffer, 16, L"ARM%dA%d%lc", zep::HarmonicOrder(position.row), position.phase + 1,
                         static_cast<std::wint_t>(position.side == zep::Side::Net ? L'N' : L'L'));
}

}  // namespace kzbench
