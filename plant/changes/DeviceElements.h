// The elements that the main configuration document has of a device: one in its list, and its setups.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "DriverSetup.h"
#include "LimitsStore.h"
#include "UnitsRecord.h"
#include "project/ChosenVariables.h"

namespace plant {

inline constexpr zep::SetupList DeviceElements{L"devices", L"device"};
inline constexpr std::array<zep::SetupList, 4> AllOfDevice{DeviceElements, zep::UnitSetups, zep::ViewSetups,
                                                           Selections};

// Puts what is in an element into another one: texts that have it already are replaced, other elements appended.
void CopyInto(XmlDocument::XmlNode& to, XmlDocument::Element from);

// The chosen variables with another name in front; what names no device or a different one stays.
[[nodiscard]] VariableList RenamedVariables(const VariableList& variables, const KZBasicString& from,
                                            const KZBasicString& to);

// A text as a whole number that is not negative; nothing for any other text.
[[nodiscard]] std::optional<int> ParseCount(std::wstring_view text) noexcept;

}  // namespace plant
