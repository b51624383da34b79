// The controls of user32: CStatic, CButton, CEdit, CComboBox, CListBox. Part of afxwin.h.
//
// Difference from MFC: controls are made by a dialog template and bound with DDX_Control; they have no Create of their
// own.
#pragma once

#include "afxwnd_.h"

class KZMFC_API CStatic : public CWnd {
    DECLARE_DYNAMIC(CStatic)
};

class KZMFC_API CButton : public CWnd {
    DECLARE_DYNAMIC(CButton)

public:
    [[nodiscard]] int GetCheck() const { return static_cast<int>(SendMessage(BM_GETCHECK)); }
    void SetCheck(int nCheck) { SendMessage(BM_SETCHECK, static_cast<WPARAM>(nCheck)); }
    void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE) { SendMessage(BM_SETSTYLE, nStyle, bRedraw); }
};

class KZMFC_API CEdit : public CWnd {
    DECLARE_DYNAMIC(CEdit)

public:
    // Also scrolls the caret into view, unless bNoScroll.
    void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE);
    void LimitText(int nChars = 0) { SendMessage(EM_LIMITTEXT, static_cast<WPARAM>(nChars)); }
};

class KZMFC_API CComboBox : public CWnd {
    DECLARE_DYNAMIC(CComboBox)

public:
    [[nodiscard]] int GetCurSel() const { return static_cast<int>(SendMessage(CB_GETCURSEL)); }
    int SetCurSel(int nSelect) { return static_cast<int>(SendMessage(CB_SETCURSEL, static_cast<WPARAM>(nSelect))); }
    int AddString(LPCWSTR lpszString)
    {
        return static_cast<int>(SendMessage(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(lpszString)));
    }
    void ResetContent() { SendMessage(CB_RESETCONTENT); }
};

class KZMFC_API CListBox : public CWnd {
    DECLARE_DYNAMIC(CListBox)

public:
    // Multiple selection: whether a row is selected (> 0), and how many are.
    [[nodiscard]] int GetSel(int nIndex) const
    {
        return static_cast<int>(SendMessage(LB_GETSEL, static_cast<WPARAM>(nIndex)));
    }
    [[nodiscard]] int GetSelCount() const { return static_cast<int>(SendMessage(LB_GETSELCOUNT)); }
    int AddString(LPCWSTR lpszItem)
    {
        return static_cast<int>(SendMessage(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(lpszItem)));
    }
    void ResetContent() { SendMessage(LB_RESETCONTENT); }
    // The width in pixels that the list can scroll.
    void SetHorizontalExtent(int cxExtent) { SendMessage(LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(cxExtent)); }
};
