#include "BareDialog.h"

namespace {

INT_PTR CALLBACK PageProcedure(HWND, UINT message, WPARAM, LPARAM)
{
    return message == WM_INITDIALOG;
}

void CreatePages(HWND dialog, const BareDialog& templates)
{
    HWND page = nullptr;
    for (const unsigned id : templates.pages)
        page = ::CreateDialogParamW(templates.module, MAKEINTRESOURCEW(id), dialog, PageProcedure, 0);
    if (page)
        ::ShowWindow(page, SW_SHOW);
}

INT_PTR CALLBACK DialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INITDIALOG) {
        CreatePages(dialog, *reinterpret_cast<const BareDialog*>(lParam));
        return TRUE;
    }
    if (message == WM_COMMAND && LOWORD(wParam) == IDCANCEL) {
        ::EndDialog(dialog, IDCANCEL);
        return TRUE;
    }
    return FALSE;
}

}  // namespace

void RunBareDialog(const BareDialog& templates, HWND owner)
{
    ::DialogBoxParamW(templates.module, MAKEINTRESOURCEW(templates.dialog), owner, DialogProcedure,
                      reinterpret_cast<LPARAM>(&templates));
}

HWND CreateBareDialog(const BareDialog& templates)
{
    const HWND frame = ::CreateWindowExW(0, L"Static", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 800, 600, nullptr,
                                         nullptr, nullptr, nullptr);
    const HWND dialog = ::CreateDialogParamW(templates.module, MAKEINTRESOURCEW(templates.dialog), frame,
                                             DialogProcedure, reinterpret_cast<LPARAM>(&templates));
    ::ShowWindow(dialog, SW_SHOW);
    ::UpdateWindow(dialog);
    return dialog;
}
