// What the section buttons of the options hub do.
#include "../strings/StringIds.h"
#include "ExceptionGuard.h"
#include "KZDlgOptions.h"
#include "KZLoadString.h"
#include "KZMainCfg.h"
#include "KZQuorvelantaSetup.h"

void KZDlgOptions::OnSection(UINT id)
{
    using Handler = void (KZDlgOptions::*)();
    static constexpr Handler Handlers[KZSectionCount] = {
        &KZDlgOptions::OnDriver,        &KZDlgOptions::OnDevice,   &KZDlgOptions::OnLimits,   &KZDlgOptions::OnUnits,
        &KZDlgOptions::OnInputsOutputs, &KZDlgOptions::OnGeneric1, &KZDlgOptions::OnGeneric2, &KZDlgOptions::OnGeneric3,
    };
    const UINT section = id - KZSectionButtonBase;
    if (section >= KZSectionCount)
        return;
    // This is called out of a window procedure, which no exception may leave.
    const bool handled = Succeeds([&] {
        (this->*Handlers[section])();
        return true;
    });
    if (!handled)
        AfxMessageBox(KZLoadString(KZ_IDS_OPTIONS_SECTION_FAILED).c_str());
}

void KZDlgOptions::OnDriver()
{
    TellOwner(KZSectionDriver, SetupDriver(DeviceNode()));
}

void KZDlgOptions::OnDevice()
{
    TellOwner(KZSectionDevice, SetupDevice(DeviceNode()));
}

void KZDlgOptions::OnLimits()
{
    XmlDocument::XmlNode* node = FindRecord(L"viewSetups/viewSetup?driverId=%s?");
    TellOwner(KZSectionLimits, SetupLimits(node));
}

void KZDlgOptions::OnUnits()
{
    TellOwner(KZSectionUnits, SetupUnits());
}

void KZDlgOptions::OnInputsOutputs()
{
    TellOwner(KZSectionInputsOutputs, SetupInputsOutputs(DeviceNode()));
}

void KZDlgOptions::OnGeneric1()
{
    TellOwner(KZSectionGeneric1, SetupGeneric1());
}

void KZDlgOptions::OnGeneric2()
{
    TellOwner(KZSectionGeneric2, SetupGeneric2());
}

void KZDlgOptions::OnGeneric3()
{
    TellOwner(KZSectionGeneric3, SetupGeneric3());
}

bool KZDlgOptions::SetupDriver(XmlDocument::XmlNode*)
{
    return NothingToSetUp(KZSectionDriver);
}

bool KZDlgOptions::SetupDevice(XmlDocument::XmlNode*)
{
    return NothingToSetUp(KZSectionDevice);
}

bool KZDlgOptions::SetupLimits(XmlDocument::XmlNode*)
{
    return NothingToSetUp(KZSectionLimits);
}

bool KZDlgOptions::SetupUnits()
{
    return NothingToSetUp(KZSectionUnits);
}

bool KZDlgOptions::SetupInputsOutputs(XmlDocument::XmlNode*)
{
    return NothingToSetUp(KZSectionInputsOutputs);
}

bool KZDlgOptions::SetupGeneric1()
{
    return NothingToSetUp(KZSectionGeneric1);
}

bool KZDlgOptions::SetupGeneric2()
{
    return NothingToSetUp(KZSectionGeneric2);
}

bool KZDlgOptions::SetupGeneric3()
{
    return NothingToSetUp(KZSectionGeneric3);
}

bool KZDlgOptions::NothingToSetUp(KZOptionsSection section)
{
    const KZBasicString format = KZLoadString(KZ_IDS_OPTIONS_NOTHING_TO_SET_UP);
    CString caption;
    m_sections[section].GetWindowTextW(caption);
    std::wstring name(static_cast<LPCWSTR>(caption));
    std::erase(name, L'&');  // of the access key
    AfxMessageBox(KZBasicString::Format(format.c_str(), ModelName().c_str(), name.c_str()).c_str());
    return false;
}

void KZDlgOptions::TellOwner(KZOptionsSection section, bool changed)
{
    CWnd* owner = changed ? GetParent() : nullptr;
    if (owner)
        owner->SendMessage(WM_KZ_OPTIONS_CHANGED, static_cast<WPARAM>(section), 0);
}

KZBasicString KZDlgOptions::ModelName() const
{
    return m_pDriver ? KZQuorvelantaSetup::Get()->DriverName(m_pDriver->TypeName().c_str()) : KZBasicString();
}

XmlDocument::XmlNode* KZDlgOptions::DeviceNode() const
{
    return FindRecord(L"devices/device?driverId=%s?");
}

XmlDocument::XmlNode* KZDlgOptions::FindRecord(const wchar_t* query) const
{
    return m_pDriver ? KZMainCfg::Get()->Root()->NodeV(query, m_pDriver->DriverId().c_str()) : nullptr;
}
