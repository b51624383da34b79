// Dialog data exchange and validation. Part of afxwin.h.
//
// Each DDX function moves one value: from the control when pDX->m_bSaveAndValidate, otherwise to it. An id that the
// dialog's template lacks throws CNotSupportedException, so UpdateData reports it and returns FALSE; OnInitDialog then
// ends the dialog. A function that refuses a value tells the user why and calls Fail: the focus is on the control with
// its text selected, and UpdateData returns FALSE.
//
// Difference from MFC: the functions listed.
#pragma once

#include "afxwnd_.h"

class KZMFC_API CDataExchange {
public:
    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate) noexcept
        : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(pDlgWnd)
    {
    }

    BOOL m_bSaveAndValidate;
    CWnd* m_pDlgWnd;
    HWND m_hWndLastControl = nullptr;
    BOOL m_bEditLastControl = FALSE;

    // The control of that id, which Fail turns to from now on. Throws CNotSupportedException when there is none.
    HWND PrepareCtrl(int nIDC);
    // The same for an edit control.
    HWND PrepareEditCtrl(int nIDC);
    // Puts the focus on the last control and throws CUserException. The caller has told the user why.
    [[noreturn]] void Fail();
};

// Binds an object to a control, once: an object that has a window already stays as it is.
KZMFC_API void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl);

// The index of the checked radio button of the group that starts with nIDC (which has WS_GROUP); -1 when none is.
KZMFC_API void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value);
