// What adding, duplicating, renaming and taking back do with the elements of a device.
#pragma once

#include <optional>
#include <string_view>

#include "project/DeviceSetups.h"

namespace plant {

// Puts what is in an element into another one: texts that have it already are replaced, other elements appended.
void CopyInto(XmlDocument::XmlNode& to, XmlDocument::Element from);

// The chosen variables with another name in front; what names no device or a different one stays.
[[nodiscard]] VariableList RenamedVariables(const VariableList& variables, const KZBasicString& from,
                                            const KZBasicString& to);

// A text as a whole number that is not negative; nothing for any other text.
[[nodiscard]] std::optional<int> ParseCount(std::wstring_view text) noexcept;

}  // namespace plant
