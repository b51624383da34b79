#include "DialogKind.h"

#include "DeviceControls.h"
#include "LimitsControls.h"
#include "SelectVarControls.h"
#include "UnitsControls.h"

namespace {

struct Sign {
    const char* name;
    int control;  // one that no other dialog has
};
constexpr std::array<Sign, DialogKindCount - 1> Signs{{{"hub", KZSectionButtonBase},
                                                       {"device", IDC_MODE},
                                                       {"units", IDC_APPARENT_DEC_0},
                                                       {"limits", IDC_LIMITS_TAB},
                                                       {"selection", IDC_SELECTVAR_TAB}}};

}  // namespace

DialogKind KindOf(HWND dialog)
{
    std::size_t kind = 0;
    while (kind < Signs.size() && !::GetDlgItem(dialog, Signs[kind].control))
        ++kind;
    return static_cast<DialogKind>(kind);
}

const char* NameOf(DialogKind kind) noexcept
{
    const auto index = static_cast<std::size_t>(kind);
    return index < Signs.size() ? Signs[index].name : "other";
}

void ClickSection(HWND hub, KZOptionsSection section)
{
    ::PostMessageW(::GetDlgItem(hub, KZSectionButtonBase + section), BM_CLICK, 0, 0);
}
