// The rules of picking variables: what a group button does, and how many variables may be picked.
#pragma once

#include <cstddef>

namespace zep {

// The selectable boxes of a group: those that exist and are enabled.
struct GroupState {
    std::size_t checked = 0;
    std::size_t clear = 0;

    constexpr void Add(bool isChecked) noexcept { ++(isChecked ? checked : clear); }
};

// What pressing the group's button asks for.
struct GroupToggle {
    bool select = false;    // true: check every box of the group; false: clear every box
    std::size_t count = 0;  // how many boxes change
};

// A partial group is completed first; only a full group (an empty one counts as full) is cleared.
[[nodiscard]] constexpr GroupToggle ToggleOf(const GroupState& group) noexcept
{
    if (group.clear == 0)
        return {false, group.checked};
    return {true, group.clear};
}

// Whether so many more variables fit beside those already selected. A maximum of 0 is no limit.
[[nodiscard]] constexpr bool FitsMaximum(std::size_t selected, std::size_t more, int maximum) noexcept
{
    if (maximum == 0)
        return true;
    const auto limit = maximum < 0 ? std::size_t{0} : static_cast<std::size_t>(maximum);
    return selected <= limit && more <= limit - selected;
}

// What is left of a count, never below zero.
[[nodiscard]] constexpr unsigned Without(unsigned selected, std::size_t fewer) noexcept
{
    return fewer < selected ? selected - static_cast<unsigned>(fewer) : 0U;
}

}  // namespace zep
