#include "ChosenCheck.h"

#include <set>

#include "KZDriverVariable.h"
#include "KZUtf8.h"
#include "SelectionTables.h"
#include "VariableName.h"
#include "project/ChosenVariables.h"
#include "project/DocumentName.h"
#include "project/GroupMask.h"

namespace plant {

namespace {

// The name stands for a check box, and is written as that box writes it.
bool IsOffered(const KZBasicString& variable)
{
    const auto parsed = zep::ParseVariableName(variable.View());
    if (!parsed || !zep::TableOf(parsed->family).HasBox(parsed->position))
        return false;
    std::wstring name;
    zep::AppendVariableName(name, parsed->family, parsed->position);
    return name == variable.View();
}

unsigned FaultOf(const KZBasicString& fullName, const KZDeviceIdentity& device)
{
    KZBasicString owner;
    KZBasicString variable;
    if (!SplitDriverVariable(fullName, owner, variable, false))
        return IDS_PLANT_CHECK_NO_VARIABLE;
    if (owner != device.name)
        return IDS_PLANT_CHECK_OTHER_DEVICE;
    return !FieldsOfType(device.typeName.View()) || IsOffered(variable) ? 0 : IDS_PLANT_CHECK_NO_VARIABLE;
}

}  // namespace

void CheckChosenVariables(const XmlDocument& main, const KZDeviceIdentity& device, Findings& findings)
{
    const VariableList chosen = ChosenVariables(main, device.driverId);
    if (chosen.empty())
        return;
    const std::string name = ToUtf8(device.name.View());
    const auto add = [&](unsigned text, std::vector<std::wstring> arguments) {
        findings.push_back({name, std::string(MainDocument), {text, std::move(arguments)}});
    };
    if ((device.groups & MeasuredGroups).none())
        add(IDS_PLANT_CHECK_NO_GROUPS, {FormatGroupMask(device.groups)});
    std::set<std::wstring_view> seen;
    for (const KZBasicString& fullName : chosen) {
        if (!seen.insert(fullName.View()).second)
            add(IDS_PLANT_CHECK_DOUBLE_VARIABLE, {fullName.c_str()});
        else if (const unsigned fault = FaultOf(fullName, device))
            add(fault, {fullName.c_str()});
    }
}

}  // namespace plant
