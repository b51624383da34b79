#include "Roads.h"

#include <commctrl.h>

#include <array>
#include <list>

#include "CDlgOptionsZEP.h"
#include "CDlgSelectVarZEP.h"
#include "DeviceControls.h"
#include "KZMainCfg.h"
#include "LimitsControls.h"
#include "SelectVarControls.h"
#include "UnitsControls.h"

namespace {

constexpr double DialogLimit = 1.45;    // 0.10 of it for names, small screens and keys
constexpr double HubLimit = 1.50;       // ten pictures and texts on next to no template
constexpr unsigned HubTemplate = 1199;  // of the host

constexpr std::array<unsigned, 3> LimitsPages{IDD_LIMITS_HARMONIC, IDD_LIMITS_HARMONIC, IDD_LIMITS_POWER};
constexpr std::array<unsigned, 3> SelectionPages{IDD_SELECTVAR_HARMONIC, IDD_SELECTVAR_POWER, IDD_SELECTVAR_GENERAL};

}  // namespace

// The hub stands in the owner as a child, and its hooks open the dialogs.
class OptionsHub : public CDlgOptionsZEP {
public:
    OptionsHub(CWnd& owner, KZDriverDeviceZEP& device) : CDlgOptionsZEP(nullptr, &device)
    {
        SetChild();
        Create(&owner);
    }
    ~OptionsHub() override { DestroyWindow(); }

    void OpenDevice() { SetupDevice(KZMainCfg::Get()->Root()); }
    void OpenUnits() { SetupUnits(); }
    void OpenLimits()
    {
        const KZBasicString& driver = Driver()->DriverId();
        SetupLimits(KZMainCfg::Get()->Root()->NodeV(L"viewSetups/viewSetup?driverId=%s?", driver.c_str()));
    }
};

Roads::Roads()
{
    INITCOMMONCONTROLSEX controls{sizeof controls, ICC_WIN95_CLASSES};
    ::InitCommonControlsEx(&controls);
    m_hub = std::make_unique<OptionsHub>(m_owner, m_plant.Device());
}

Roads::~Roads() = default;

std::vector<Road> Roads::All()
{
    const HMODULE module = ::GetModuleHandleW(L"KZUsrZEP.dll");
    const HMODULE host = ::GetModuleHandleW(L"KZHost.dll");
    return {
        {"options hub",
         [this] { CDlgOptionsZEP(&m_owner, &m_plant.Device()).DoModal(); },
         {host, HubTemplate, {}},
         HubLimit},
        {"device settings", [this] { m_hub->OpenDevice(); }, {module, IDD_DEVICE_CONFIGURATION, {}}, DialogLimit},
        {"units", [this] { m_hub->OpenUnits(); }, {module, IDD_UNITS, {}}, DialogLimit},
        {"limits", [this] { m_hub->OpenLimits(); }, {module, IDD_LIMITS, LimitsPages}, DialogLimit},
        {"selection", [this] { OpenSelection(); }, {module, IDD_SELECTVAR, SelectionPages}, DialogLimit},
    };
}

void Roads::OpenSelection()
{
    std::list<KZBasicString> names;
    CDlgSelectVarZEP(&m_owner, &m_plant.Device(), &names, KZVariableGroups(0x74), 0).DoModal();
}
