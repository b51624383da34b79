// Dialog data exchange and validation. Part of afxwin.h.
//
// Each DDX function moves one value: from the control when pDX->m_bSaveAndValidate, otherwise to it. An id that the
// dialog's template lacks throws CNotSupportedException, so UpdateData reports it and returns FALSE; OnInitDialog then
// ends the dialog. A text that is no number, a DDV rule that is broken: a message box, the focus on the control with
// its text selected, and UpdateData returns FALSE.
//
// Differences from MFC: the functions listed; DDX_Text of double reads and writes by the C library's numeric locale.
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

KZMFC_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value);
KZMFC_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, UINT& value);
KZMFC_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, double& value);
KZMFC_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value);
KZMFC_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, LPWSTR value, int nMaxLen);  // nMaxLen: with the zero

// 0 clear, 1 checked, 2 undetermined.
KZMFC_API void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value);
// The index of the checked radio button of the group that starts with nIDC (which has WS_GROUP); -1 when none is.
KZMFC_API void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value);
KZMFC_API void AFXAPI DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index);
KZMFC_API void AFXAPI DDX_CBString(CDataExchange* pDX, int nIDC, CString& value);
KZMFC_API void AFXAPI DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index);

// Each follows the DDX call of its control.
KZMFC_API void AFXAPI DDV_MaxChars(CDataExchange* pDX, const CString& value, int nChars);
KZMFC_API void AFXAPI DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal);
