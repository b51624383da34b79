#include "FieldControls.h"

#include <algorithm>

#include "EditorProcess.h"
#include "UserNumber.h"
#include "device/DeviceControls.h"
#include "limits/LimitsControls.h"
#include "options/UnitsControls.h"

namespace editor_tests {

namespace {

using Kind = FieldControl::Kind;

std::vector<int> IdsFrom(int first, int count)
{
    std::vector<int> ids;
    for (int id = first; id < first + count; ++id)
        ids.push_back(id);
    return ids;
}

LRESULT Ask(HWND dialog, int id, UINT message)
{
    return ::SendMessageW(::GetDlgItem(dialog, id), message, 0, 0);
}

bool IsChecked(HWND dialog, int id)
{
    return Ask(dialog, id, BM_GETCHECK) == BST_CHECKED;
}

// The names of the checked ones, with "+" between them.
std::string CheckedNames(HWND dialog, const FieldControl& control)
{
    std::string names;
    for (std::size_t i = 0; i < control.ids.size(); ++i)
        if (IsChecked(dialog, control.ids[i]))
            names.append(names.empty() ? "" : "+").append(control.names[i]);
    return names;
}

bool Holds(const std::string& names, const std::string& name)
{
    return ("+" + names + "+").find("+" + name + "+") != std::string::npos;
}

}  // namespace

FieldControls DeviceFieldControls()
{
    std::vector<std::string> orders;
    for (int order = 3; order <= 25; order += 2)
        orders.push_back(std::to_string(order));
    return {
        {"device.version", {Kind::Text, {IDC_VERSION}}},
        {"device.serialNum", {Kind::Text, {IDC_SERIAL_NUMBER}}},
        {"device.gamma", {Kind::Text, {IDC_GAMMA}}},
        {"device.mode", {Kind::Boxes, IdsFrom(IDC_MODE, 4), {"harmonics", "reactive", "balance", "neutral"}}},
        {"device.filters", {Kind::Boxes, IdsFrom(IDC_FILTER, 12), orders}},
        {"device.transRatio", {Kind::Text, {IDC_RATIO}}},
        {"device.minCurrent", {Kind::Text, {IDC_CURRENT}}},
        {"device.algorithm", {Kind::List, {IDC_ALGORITHM}, {"standard", "selective", "fast"}}},
        {"device.status", {Kind::List, {IDC_STATUS}, {"stopped", "running"}}},
        {"device.numZEP", {Kind::Text, {IDC_UNITS}}},
    };
}

FieldControls UnitFieldControls()
{
    const std::vector<std::string> scales{"kilo", "plain"};
    const std::vector<std::string> decimals{"0", "1", "2", "3"};
    return {
        {"units.AP-VA.scale", {Kind::Radios, {IDC_APPARENT_KILO, IDC_APPARENT_PLAIN}, scales}},
        {"units.AP-VA.decimals",
         {Kind::Radios, {IDC_APPARENT_DEC_0, IDC_APPARENT_DEC_1, IDC_APPARENT_DEC_2, IDC_APPARENT_DEC_3}, decimals}},
        {"units.RP.scale", {Kind::Radios, {IDC_REACTIVE_KILO, IDC_REACTIVE_PLAIN}, scales}},
        {"units.RP.decimals",
         {Kind::Radios, {IDC_REACTIVE_DEC_0, IDC_REACTIVE_DEC_1, IDC_REACTIVE_DEC_2, IDC_REACTIVE_DEC_3}, decimals}},
    };
}

FieldControls LimitFieldControls(LimitsPage page)
{
    FieldControls controls;
    const auto add = [&](const std::string& variable, const char* field, int id) {
        controls["limits." + variable + "." + field] = {Kind::Number, {id}};
    };
    const auto addUpper = [&](const std::string& variable, int nominal, int maxW, int maxD) {
        add(variable, "nominal", nominal);
        add(variable, "maxW", maxW);
        add(variable, "maxD", maxD);
    };
    if (page == LimitsPage::Power) {
        addUpper("PF", IDC_PF_NOMINAL, IDC_PF_MAXW, IDC_PF_MAXD);
        add("PF", "minW", IDC_PF_MINW);
        add("PF", "minD", IDC_PF_MIND);
        addUpper("AP", IDC_AP_NOMINAL, IDC_AP_MAXW, IDC_AP_MAXD);
        addUpper("RP", IDC_RP_NOMINAL, IDC_RP_MAXW, IDC_RP_MAXD);
        addUpper("VA", IDC_VA_NOMINAL, IDC_VA_MAXW, IDC_VA_MAXD);
        return controls;
    }
    for (int row = 0; row < 13; ++row)
        addUpper("ARM" + std::to_string(2 * row + 1) + (page == LimitsPage::Net ? "AN" : "AL"),
                 IDC_HARMONIC_NOMINAL + row, IDC_HARMONIC_MAXW + row, IDC_HARMONIC_MAXD + row);
    return controls;
}

std::string ShownIn(HWND dialog, const FieldControl& control)
{
    switch (control.kind) {
    case Kind::Text:
        return ToUtf8(TextOf(::GetDlgItem(dialog, control.ids.front())));
    case Kind::Number:
        return WithSeparator(ToUtf8(TextOf(::GetDlgItem(dialog, control.ids.front()))), UserSeparator(), ".");
    case Kind::List: {
        const LRESULT item = Ask(dialog, control.ids.front(), CB_GETCURSEL);
        return item == CB_ERR ? "" : control.names.at(static_cast<std::size_t>(item));
    }
    case Kind::Boxes: {
        const std::string names = CheckedNames(dialog, control);
        return names.empty() ? "none" : names;
    }
    default:
        return CheckedNames(dialog, control);
    }
}

void EnterInto(HWND dialog, const FieldControl& control, const std::string& value)
{
    if (control.names.empty()) {
        const std::wstring text = FromUtf8(control.kind == Kind::Number ? UserNumber(value) : value);
        ::SendMessageW(::GetDlgItem(dialog, control.ids.front()), WM_SETTEXT, 0,
                       reinterpret_cast<LPARAM>(text.c_str()));
        return;
    }
    for (std::size_t i = 0; i < control.ids.size(); ++i)
        if (Holds(value, control.names[i]) != IsChecked(dialog, control.ids[i]) &&
            (control.kind == Kind::Boxes || Holds(value, control.names[i])))
            Ask(dialog, control.ids[i], BM_CLICK);
}

}  // namespace editor_tests
