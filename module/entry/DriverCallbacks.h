// What this driver does in the editor: the four functions that the host calls. A driver that is null or no
// KZDriverDeviceZEP gives false or null, and nothing is shown.
#pragma once

#include <list>

#include "KZDriverServices.h"

namespace zep {

// Runs the options hub. True when it ended with OK.
bool ShowOptions(CWnd* parent, KZDriver* driver) noexcept;

// Lets the user pick variables. False, with a message and the list untouched, when the device provides none of the
// groups asked for; otherwise true when the user confirmed. The text is not used.
bool SelectVariables(CWnd* parent, KZDriver* driver, std::list<KZBasicString>& variables,
                     const KZVariableGroups& groups, int maxVariables, const wchar_t* text) noexcept;

// The host's third road has nothing behind it for this model. Always false.
bool NothingToShow(CWnd* parent, KZDriver* driver) noexcept;

// Makes the options hub as a child window. The caller owns it; null when it cannot be made.
CDialog* CreateChildOptions(CWnd* parent, KZDriver* driver) noexcept;

}  // namespace zep
