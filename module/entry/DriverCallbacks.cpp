#include "DriverCallbacks.h"

#include <memory>

#include "CDlgOptionsZEP.h"
#include "CDlgSelectVarZEP.h"
#include "EdgeGuard.h"
#include "HostText.h"
#include "KZStringIds.h"

namespace zep {
namespace {

// The driver as the device that the callbacks are registered for; null when there is none or it is another.
KZDriverDeviceZEP* DeviceOf(KZDriver* driver)
{
    const bool isZep = driver && driver->IsKindOf(KZDriverDeviceZEP::GetThisClass());
    return isZep ? static_cast<KZDriverDeviceZEP*>(driver) : nullptr;
}

bool RunOptions(CWnd* parent, KZDriverDeviceZEP* device)
{
    CDlgOptionsZEP dialog(parent, device);
    return dialog.DoModal() == IDOK;
}

bool RunSelection(CWnd* parent, KZDriverDeviceZEP* device, std::list<KZBasicString>& variables,
                  const KZVariableGroups& groups, int maxVariables)
{
    if ((device->VariableGroups() & groups).none()) {
        AfxMessageBox(HostText(KZS_NO_SUCH_VARIABLES).c_str(), MB_OK, 0);
        return false;
    }
    // The dialog gets the host's own mask: what the device lacks is for its pages to leave out.
    CDlgSelectVarZEP dialog(parent, device, &variables, groups, maxVariables);
    return dialog.DoModal() == IDOK;
}

CDialog* MakeChildOptions(CWnd* parent, KZDriverDeviceZEP* device)
{
    auto dialog = std::make_unique<CDlgOptionsZEP>(parent, device);
    dialog->SetChild();
    dialog->SetBackgroundColor(::GetSysColor(COLOR_WINDOW));
    return dialog->Create(parent) != 0 ? dialog.release() : nullptr;
}

}  // namespace

bool ShowOptions(CWnd* parent, KZDriver* driver) noexcept
{
    KZDriverDeviceZEP* const device = DeviceOf(driver);
    return device && AtEdge(
                         parent, [&] { return RunOptions(parent, device); }, false);
}

bool SelectVariables(CWnd* parent, KZDriver* driver, std::list<KZBasicString>& variables,
                     const KZVariableGroups& groups, int maxVariables, const wchar_t*) noexcept
{
    KZDriverDeviceZEP* const device = DeviceOf(driver);
    return device && AtEdge(
                         parent, [&] { return RunSelection(parent, device, variables, groups, maxVariables); }, false);
}

bool NothingToShow(CWnd*, KZDriver*) noexcept
{
    return false;
}

CDialog* CreateChildOptions(CWnd* parent, KZDriver* driver) noexcept
{
    KZDriverDeviceZEP* const device = DeviceOf(driver);
    CDialog* const none = nullptr;
    return device ? AtEdge(
                        parent, [&] { return MakeChildOptions(parent, device); }, none)
                  : none;
}

}  // namespace zep
