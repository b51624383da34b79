// The selection dialog beside its bare templates: opening it, and a group click.
#include <afxcmn.h>
#include <afxwin.h>

#include <array>
#include <list>

#include "CDlgSelectVarZEP.h"
#include "KZDriverDeviceZEP.h"
#include "PairedRuns.h"
#include "SelectVarControls.h"
#include "SelectionTables.h"

namespace {

using zep::Family;

CWinApp application;

INT_PTR CALLBACK EmptyProcedure(HWND, UINT message, WPARAM, LPARAM)
{
    return message == WM_INITDIALOG;
}

HINSTANCE ModuleInstance()
{
    return ::GetModuleHandleW(L"KZUsrZEP.dll");
}

void ShowAndDestroy(HWND dialog)
{
    ::ShowWindow(dialog, SW_SHOW);
    ::UpdateWindow(dialog);
    ::DestroyWindow(dialog);
}

// The same templates, shown the same way, with no code behind them.
void OpenBareTemplates()
{
    const auto create = [](unsigned id, HWND parent) {
        return ::CreateDialogParamW(ModuleInstance(), MAKEINTRESOURCEW(id), parent, EmptyProcedure, 0);
    };
    const HWND dialog = create(IDD_SELECTVAR, nullptr);
    for (const unsigned id : {IDD_SELECTVAR_HARMONIC, IDD_SELECTVAR_POWER, IDD_SELECTVAR_GENERAL}) {
        const HWND page = create(id, dialog);
        if (id == IDD_SELECTVAR_GENERAL)
            ::ShowWindow(page, SW_SHOW);
    }
    ShowAndDestroy(dialog);
}

class SelectionDialog : public CDlgSelectVarZEP {
public:
    SelectionDialog(KZDriverDeviceZEP& device, std::list<KZBasicString>& names)
        : CDlgSelectVarZEP(nullptr, &device, &names, KZVariableGroups(0x74), 0)
    {
        Create(IDD_SELECTVAR, nullptr);
    }
    ~SelectionDialog() override { DestroyWindow(); }
};

void OpenDialog(KZDriverDeviceZEP& device)
{
    std::list<KZBasicString> names;
    SelectionDialog dialog(device, names);
    dialog.ShowWindow(SW_SHOW);
    dialog.UpdateWindow();
}

HWND Page(const CWnd& dialog, int controlOfPage)
{
    for (HWND child = ::GetWindow(dialog.m_hWnd, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (::GetDlgItem(child, controlOfPage))
            return child;
    }
    return nullptr;
}

bool CompareGroupClick(KZDriverDeviceZEP& device)
{
    std::list<KZBasicString> names;
    SelectionDialog dialog(device, names);
    CTabCtrl& tabs = *static_cast<CTabCtrl*>(dialog.GetDlgItem(IDC_SELECTVAR_TAB));
    tabs.SetCurSel(2);
    NMHDR header{tabs.m_hWnd, IDC_SELECTVAR_TAB, TCN_SELCHANGE};
    dialog.SendMessage(WM_NOTIFY, IDC_SELECTVAR_TAB, reinterpret_cast<LPARAM>(&header));
    dialog.ShowWindow(SW_SHOW);
    dialog.UpdateWindow();

    const HWND page = Page(dialog, IDC_HARMONIC_NET_BOX);
    std::array<HWND, 39> boxes{};
    for (std::size_t index = 0; index < boxes.size(); ++index)
        boxes[index] = ::GetDlgItem(page, IDC_HARMONIC_NET_BOX + static_cast<int>(index));
    const HWND all = ::GetDlgItem(page, IDC_NET_COLUMN);

    const auto clear = [&] {
        for (const HWND box : boxes)
            ::SendMessageW(box, BM_SETCHECK, BST_UNCHECKED, 0);
        dialog.SendMessage(WM_USER + 35, 1000, 0);
        dialog.UpdateWindow();
        ::UpdateWindow(page);
    };
    return kzbench::Compare(
        "group click on 39 boxes / 39 BM_SETCHECK", 101, 1.30, clear,
        [&] { ::SendMessageW(page, WM_COMMAND, IDC_NET_COLUMN, reinterpret_cast<LPARAM>(all)); },
        [&] {
            for (const HWND box : boxes)
                ::SendMessageW(box, BM_SETCHECK, BST_CHECKED, 0);
        });
}

}  // namespace

int main()
{
    INITCOMMONCONTROLSEX controls{sizeof controls, ICC_WIN95_CLASSES};
    ::InitCommonControlsEx(&controls);
    KZDriverDeviceZEP device({L"zep-1", L"Rolling mill 1", 1, L"ZEP", L"Main drive", KZVariableGroups(0x74)});

    kzbench::PrintHeading();
    bool within = kzbench::Compare(
        "selection dialog / its bare templates", 31, 1.25, [] {}, [&] { OpenDialog(device); }, OpenBareTemplates);
    within = CompareGroupClick(device) && within;
    return within ? 0 : 1;
}
