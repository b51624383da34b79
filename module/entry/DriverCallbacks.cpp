#include "DriverCallbacks.h"

#include <memory>

#include "CDlgOptionsZEP.h"
#include "CDlgSelectVarZEP.h"
#include "EdgeGuard.h"
#include "HostText.h"
#include "KZStringIds.h"

namespace zep {
namespace {

bool RunOptions(CWnd* parent, KZDriver* driver)
{
    CDlgOptionsZEP dialog(parent, static_cast<KZDriverDevice*>(driver));
    return dialog.DoModal() == IDOK;
}

bool RunSelection(CWnd* parent, KZDriver* driver, std::list<KZBasicString>& variables, const KZVariableGroups& groups,
                  int maxVariables)
{
    if ((driver->VariableGroups() & groups).none()) {
        AfxMessageBox(HostText(KZS_NO_SUCH_VARIABLES).c_str(), MB_OK, 0);
        return false;
    }
    // The dialog gets the host's own mask: what the device lacks is for its pages to leave out.
    CDlgSelectVarZEP dialog(parent, static_cast<KZDriverDeviceZEP*>(driver), &variables, groups, maxVariables);
    return dialog.DoModal() == IDOK;
}

CDialog* MakeChildOptions(CWnd* parent, KZDriver* driver)
{
    auto dialog = std::make_unique<CDlgOptionsZEP>(parent, static_cast<KZDriverDevice*>(driver));
    dialog->SetChild();
    dialog->SetBackgroundColor(::GetSysColor(COLOR_WINDOW));
    return dialog->Create(parent) != 0 ? dialog.release() : nullptr;
}

}  // namespace

bool ShowOptions(CWnd* parent, KZDriver* driver) noexcept
{
    return AtEdge([&] { return RunOptions(parent, driver); }, false);
}

bool SelectVariables(CWnd* parent, KZDriver* driver, std::list<KZBasicString>& variables,
                     const KZVariableGroups& groups, int maxVariables, const wchar_t*) noexcept
{
    return AtEdge([&] { return RunSelection(parent, driver, variables, groups, maxVariables); }, false);
}

bool NothingToShow(CWnd*, KZDriver*) noexcept
{
    return false;
}

CDialog* CreateChildOptions(CWnd* parent, KZDriver* driver) noexcept
{
    return AtEdge([&] { return MakeChildOptions(parent, driver); }, static_cast<CDialog*>(nullptr));
}

}  // namespace zep
