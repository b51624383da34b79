// Other ways to parse and build the names of harmonics, to measure the product's beside them. Each parser returns the
// position's index or -1, each builder the name's length.
#pragma once

#include <string>

#include "VariableName.h"

namespace kzbench {

[[nodiscard]] int ParseByScanf(const std::wstring& name);
[[nodiscard]] int ParseByRegex(const std::wstring& name);
int BuildByHand(wchar_t* buffer, const zep::VariablePosition& position) noexcept;
int BuildByPrintf(wchar_t* buffer, const zep::VariablePosition& position);

// The rule as one pass over the characters; in the header, since the product's parser is inlined too.
[[nodiscard]] inline int ParseByHand(const std::wstring& text) noexcept
{
    const wchar_t* name = text.c_str();
    if (name[0] != L'A' || name[1] != L'R' || name[2] != L'M')
        return -1;
    unsigned order = static_cast<unsigned>(name[3] - L'0');
    if (order > 9)
        return -1;
    const wchar_t* next = name + 4;
    if (const unsigned digit = static_cast<unsigned>(*next - L'0'); digit <= 9) {
        order = 10 * order + digit;
        ++next;
    }
    const unsigned row = order == 0 ? 0 : (order - 1) / 2;
    if (row > 12 || next[0] != L'A')
        return -1;
    const unsigned phase = static_cast<unsigned>(next[1] - L'1');
    if (phase > 2 || (next[2] != L'N' && next[2] != L'L'))
        return -1;
    return static_cast<int>((2 * row + (next[2] == L'L' ? 1U : 0U)) * 3 + phase);
}

}  // namespace kzbench
