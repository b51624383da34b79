// The least program with a window that the MFC subset makes: what starting the editor is measured beside.
#include <afxwin.h>

#include "EmptyProgramIds.h"

namespace {

CWinApp application(L"EmptyProgram");

class EmptyWindow : public CDialog {
protected:
    void OnCancel() override { ::PostQuitMessage(0); }
};

}  // namespace

int main()
{
    if (!AfxWinInit(::GetModuleHandleW(nullptr), nullptr, ::GetCommandLineW(), SW_SHOWDEFAULT))
        return 2;
    EmptyWindow window;
    if (!window.Create(IDD_EMPTY))
        return 2;
    application.m_pMainWnd = &window;
    window.ShowWindow(SW_SHOW);
    application.Run();
    window.DestroyWindow();
    return 0;
}
