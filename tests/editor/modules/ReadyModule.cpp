// A driver module for the tests: one message box for each callback, so that a test can answer it from outside.
#include <afxwin.h>

#include <memory>

#include "KZDlgOptions.h"
#include "KZDriverDeviceZEP.h"
#include "KZDriverServices.h"
#include "KZMainCfg.h"

namespace {

// The device whose factory makes no dialog.
constexpr wchar_t DeviceWithoutDialog[] = L"NODIALOG";

int Ask(CWnd* parent, const KZBasicString& text, const wchar_t* title)
{
    return ::MessageBoxW(parent ? parent->m_hWnd : nullptr, text.c_str(), title, MB_OKCANCEL);
}

// OK changes the main configuration, as a driver's dialogs do.
bool Options(CWnd* parent, KZDriver* driver)
{
    if (Ask(parent, driver->Name(), L"test options") != IDOK)
        return false;
    KZMainCfg::Get()->Root()->SetValue(L"changedBy", driver->DriverId().c_str());
    KZMainCfg::Get()->SetDirty(true);
    return true;
}

// The box shows what arrived, one line each; OK replaces the list by two names.
bool Select(CWnd* parent, KZDriver* driver, std::list<KZBasicString>& variables, const KZVariableGroups& groups,
            int maxVariables, const wchar_t* text)
{
    KZBasicString arrived =
        KZBasicString::Format(L"%llX|%d|%s", groups.to_ullong(), maxVariables, text ? text : L"(null)");
    for (const KZBasicString& variable : variables)
        arrived += KZBasicString::Format(L"|%s", variable.c_str());
    if (Ask(parent, arrived, L"test select") != IDOK)
        return false;
    variables.clear();
    for (const wchar_t* variable : {L"HZIN", L"VI1N"})
        variables.push_back(KZBasicString::Format(L"%s.%s", driver->Name().c_str(), variable));
    return true;
}

// Its units section sets the reactive power to thousands, without a question.
class TestOptions : public KZDlgOptions {
public:
    using KZDlgOptions::KZDlgOptions;

private:
    bool SetupUnits() override
    {
        XmlDocument::XmlNode* setups = KZMainCfg::Get()->Root()->NewChild(L"unitSetups", nullptr);
        XmlDocument::XmlNode* setup = setups->NewChild(L"unitSetup", nullptr);
        setup->SetValue(L"driverId", Driver()->DriverId().c_str());
        setup->NewChild(L"unit", nullptr)->SetValue(L"name", L"RP");
        KZMainCfg::Get()->SetDirty(true);
        return true;
    }
};

bool Third(CWnd*, KZDriver*)
{
    return false;
}

CDialog* CreateChildOptions(CWnd* parent, KZDriver* driver)
{
    if (driver->Name() == DeviceWithoutDialog)
        return nullptr;
    auto dialog = std::make_unique<TestOptions>(parent, driver);
    dialog->SetChild();
    return dialog->Create(parent) ? dialog.release() : nullptr;
}

}  // namespace

extern "C" __declspec(dllexport) bool InitializeUsrDriver_ZEP()
{
    return KZDriverServices::Add(RUNTIME_CLASS(KZDriverDeviceZEP), Options, Select, Third) &&
           KZDriverServices::AddCreateChildOptionsDlg(RUNTIME_CLASS(KZDriverDeviceZEP), CreateChildOptions);
}
