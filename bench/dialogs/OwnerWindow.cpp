#include "OwnerWindow.h"

OwnerWindow::OwnerWindow()
{
    CreateEx(0, AfxRegisterWndClass(0), L"Benchmarks", WS_OVERLAPPEDWINDOW, 0, 0, 800, 600, nullptr, nullptr);
}

OwnerWindow::~OwnerWindow()
{
    DestroyWindow();
}

LRESULT OwnerWindow::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_ENTERIDLE && wParam == MSGF_DIALOGBOX) {
        const HWND dialog = reinterpret_cast<HWND>(lParam);
        ::RedrawWindow(dialog, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        if (m_whileOpen)
            m_whileOpen();
        ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
        return 0;
    }
    return CWnd::WindowProc(message, wParam, lParam);
}
