// A small extension library: dialog templates and one dialog class.
#include <afxdllx.h>
#include <afxwin.h>

#include "ExtensionIds.h"

namespace {

AFX_EXTENSION_MODULE module = {};

class ExtensionDialog : public CDialog {
public:
    ExtensionDialog() : CDialog(IDD_EXTENSION) {}

protected:
    afx_msg LRESULT OnAnswer(WPARAM value, LPARAM) { return static_cast<LRESULT>(value) + 1; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ExtensionDialog, CDialog)
    ON_MESSAGE(WM_APP, &ExtensionDialog::OnAnswer)
END_MESSAGE_MAP()

}  // namespace

// Opens a dialog of the library's own, asks it something and destroys it.
extern "C" __declspec(dllexport) LRESULT AskExtensionDialog(WPARAM value)
{
    ExtensionDialog dialog;
    if (!dialog.Create(IDD_EXTENSION))
        return -1;
    const LRESULT answer = dialog.SendMessage(WM_APP, value);
    dialog.DestroyWindow();
    return answer;
}

extern "C" BOOL APIENTRY DllMain(HINSTANCE instance, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH) {
        if (!AfxInitExtensionModule(module, instance))
            return FALSE;
        new CDynLinkLibrary(module);
    } else if (reason == DLL_PROCESS_DETACH) {
        AfxTermExtensionModule(module, FALSE);
    }
    return TRUE;
}
