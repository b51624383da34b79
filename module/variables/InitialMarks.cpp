#include "InitialMarks.h"

#include "KZDriverVariable.h"
#include "KZWideChar.h"

namespace zep {

InitialMarks::InitialMarks(const std::list<KZBasicString>& fullNames, const KZBasicString& deviceName)
{
    KZBasicString device;
    KZBasicString variable;
    for (const KZBasicString& fullName : fullNames) {
        if (!SplitDriverVariable(fullName, device, variable, false) ||
            KZWideChar::Compare(device.c_str(), deviceName.c_str()) != 0)
            continue;
        if (const auto parsed = ParseVariableName(variable.View()))
            m_positions[static_cast<std::size_t>(parsed->family)].set(PositionIndex(parsed->position));
    }
}

}  // namespace zep
