// The DDX functions.
#include <afxwin.h>

namespace {

int SendInt(HWND control, UINT message, int wParam = 0) noexcept
{
    return static_cast<int>(::SendMessageW(control, message, static_cast<WPARAM>(wParam), 0));
}

bool IsRadioButton(HWND control) noexcept
{
    return (::SendMessageW(control, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) != 0;
}

// Sets one button of a group whose others are set too. Checking an automatic one would make the system walk over the
// whole dialog in search of them, so it is not automatic meanwhile. The checked one is the group's tab stop.
void CheckRadio(HWND control, bool checked) noexcept
{
    const auto style = static_cast<DWORD>(::GetWindowLongPtrW(control, GWL_STYLE));
    const bool isChecked = SendInt(control, BM_GETCHECK) == BST_CHECKED;
    if (isChecked == checked && ((style & WS_TABSTOP) != 0) == checked)
        return;
    if (!checked) {
        SendInt(control, BM_SETCHECK, BST_UNCHECKED);
        return;
    }
    const WORD buttonStyle = LOWORD(style);
    ::SendMessageW(control, BM_SETSTYLE, (buttonStyle & ~BS_TYPEMASK) | BS_RADIOBUTTON, FALSE);
    SendInt(control, BM_SETCHECK, BST_CHECKED);
    ::SendMessageW(control, BM_SETSTYLE, buttonStyle, FALSE);
}

bool StartsGroup(HWND control) noexcept
{
    return (::GetWindowLongPtrW(control, GWL_STYLE) & WS_GROUP) != 0;
}

}  // namespace

void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl)
{
    if (rControl.m_hWnd)
        return;
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (!rControl.SubclassWindow(control))
        AfxThrowNotSupportedException();  // another object has the window
}

void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value)
{
    HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = -1;
    int button = 0;
    do {
        if (IsRadioButton(control)) {
            if (!pDX->m_bSaveAndValidate)
                CheckRadio(control, button == value);
            else if (SendInt(control, BM_GETCHECK) != BST_UNCHECKED)
                value = button;
            ++button;
        }
        control = ::GetWindow(control, GW_HWNDNEXT);
    } while (control && !StartsGroup(control));
}
