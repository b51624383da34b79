#include "FillWindow.h"

void FillWindow(const CWnd& window, int control)
{
    CRect client;
    window.GetClientRect(&client);
    if (CWnd* only = window.GetDlgItem(control))
        only->SetWindowPos(nullptr, 0, 0, client.Width(), client.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
}
