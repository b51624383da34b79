// Which of a device's variables a host list already holds.
#pragma once

#include <array>
#include <list>

#include "KZBasicString.h"
#include "VariableName.h"

namespace zep {

class InitialMarks {
public:
    // Reads a list of full names in one pass. Names of other devices, names that match no rule and doubled names are
    // skipped without a word.
    InitialMarks(const std::list<KZBasicString>& fullNames, const KZBasicString& deviceName);

    // The positions of one family that the list names, those included that no check box stands for.
    [[nodiscard]] const PositionSet& Of(Family family) const noexcept
    {
        return m_positions[static_cast<std::size_t>(family)];
    }

private:
    std::array<PositionSet, FamilyCount> m_positions;
};

}  // namespace zep
