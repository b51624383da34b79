// The variables that the engineer has chosen of each device. They live in the main configuration document, one
// "selection" per driver under "selections"; its "variables" holds the full names, one per line, because a named value
// can be replaced as a whole and a name holds any character but a line break.
#pragma once

#include <functional>
#include <list>
#include <string_view>

#include "DriverSetup.h"
#include "KZBasicString.h"
#include "KZXmlDocument.h"

namespace plant {

inline constexpr zep::SetupList Selections{L"selections", L"selection"};

using VariableList = std::list<KZBasicString>;

// In the order in which they were chosen; empty when there are none.
[[nodiscard]] VariableList ChosenVariables(const XmlDocument& document, const KZBasicString& driverId);

// Calls back for each driver with the names that are chosen of it, one per line. A second element of the same driver
// counts nowhere, and is told behind the first.
void ForEachChoice(const XmlDocument& document,
                   const std::function<void(const KZBasicString& driverId, std::wstring_view lines)>& tell);

// Replaces the driver's chosen variables, as a part of a change that marks the document dirty at its end: that puts the
// whole document into the recovery file. Returns whether they were others.
bool SetChosenVariables(XmlDocument& document, const KZBasicString& driverId, const VariableList& variables);
// The same as a change of its own, which marks the document dirty. Nothing happens when they are the same.
void StoreChosenVariables(XmlDocument& document, const KZBasicString& driverId, const VariableList& variables);

// A select-variables dialog hands back the new choices only; the earlier ones stay chosen too. No name comes twice.
[[nodiscard]] VariableList MergeChoices(const VariableList& earlier, const VariableList& added);

}  // namespace plant
