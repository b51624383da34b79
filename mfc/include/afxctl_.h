// The controls of user32: CStatic, CButton, CEdit, CComboBox, CListBox. Part of afxwin.h.
#pragma once

#include "afxwnd_.h"

// Every control can be created by its own Create; most are made by a dialog template and bound with DDX_Control.
class KZMFC_API CStatic : public CWnd {
    DECLARE_DYNAMIC(CStatic)

public:
    using CWnd::Create;
    virtual BOOL Create(LPCWSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID = 0xFFFF);

    HBITMAP SetBitmap(HBITMAP hBitmap)
    {
        return reinterpret_cast<HBITMAP>(SendMessage(STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(hBitmap)));
    }
    HICON SetIcon(HICON hIcon)
    {
        return reinterpret_cast<HICON>(SendMessage(STM_SETICON, reinterpret_cast<WPARAM>(hIcon)));
    }
};

class KZMFC_API CButton : public CWnd {
    DECLARE_DYNAMIC(CButton)

public:
    using CWnd::Create;
    virtual BOOL Create(LPCWSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    [[nodiscard]] UINT GetState() const { return static_cast<UINT>(SendMessage(BM_GETSTATE)); }
    void SetState(BOOL bHighlight) { SendMessage(BM_SETSTATE, static_cast<WPARAM>(bHighlight)); }
    [[nodiscard]] int GetCheck() const { return static_cast<int>(SendMessage(BM_GETCHECK)); }
    void SetCheck(int nCheck) { SendMessage(BM_SETCHECK, static_cast<WPARAM>(nCheck)); }
    [[nodiscard]] UINT GetButtonStyle() const { return GetStyle() & 0xFF; }
    void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE) { SendMessage(BM_SETSTYLE, nStyle, bRedraw); }
    HBITMAP SetBitmap(HBITMAP hBitmap)
    {
        return reinterpret_cast<HBITMAP>(SendMessage(BM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(hBitmap)));
    }
};

class KZMFC_API CEdit : public CWnd {
    DECLARE_DYNAMIC(CEdit)

public:
    using CWnd::Create;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    [[nodiscard]] BOOL GetModify() const { return static_cast<BOOL>(SendMessage(EM_GETMODIFY)); }
    void SetModify(BOOL bModified = TRUE) { SendMessage(EM_SETMODIFY, static_cast<WPARAM>(bModified)); }
    void GetSel(int& nStartChar, int& nEndChar) const;
    // Also scrolls the caret into view, unless bNoScroll.
    void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE);
    void ReplaceSel(LPCWSTR lpszNewText, BOOL bCanUndo = FALSE)
    {
        SendMessage(EM_REPLACESEL, static_cast<WPARAM>(bCanUndo), reinterpret_cast<LPARAM>(lpszNewText));
    }
    void LimitText(int nChars = 0) { SendMessage(EM_LIMITTEXT, static_cast<WPARAM>(nChars)); }
    void SetLimitText(UINT nMax) { SendMessage(EM_SETLIMITTEXT, nMax); }
    [[nodiscard]] UINT GetLimitText() const { return static_cast<UINT>(SendMessage(EM_GETLIMITTEXT)); }
    BOOL SetReadOnly(BOOL bReadOnly = TRUE)
    {
        return static_cast<BOOL>(SendMessage(EM_SETREADONLY, static_cast<WPARAM>(bReadOnly)));
    }
};

class KZMFC_API CComboBox : public CWnd {
    DECLARE_DYNAMIC(CComboBox)

public:
    using CWnd::Create;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    [[nodiscard]] int GetCount() const { return static_cast<int>(SendMessage(CB_GETCOUNT)); }
    [[nodiscard]] int GetCurSel() const { return static_cast<int>(SendMessage(CB_GETCURSEL)); }
    int SetCurSel(int nSelect) { return static_cast<int>(SendMessage(CB_SETCURSEL, static_cast<WPARAM>(nSelect))); }
    int AddString(LPCWSTR lpszString)
    {
        return static_cast<int>(SendMessage(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(lpszString)));
    }
    int InsertString(int nIndex, LPCWSTR lpszString)
    {
        return static_cast<int>(
            SendMessage(CB_INSERTSTRING, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(lpszString)));
    }
    int DeleteString(UINT nIndex) { return static_cast<int>(SendMessage(CB_DELETESTRING, nIndex)); }
    void ResetContent() { SendMessage(CB_RESETCONTENT); }
    [[nodiscard]] int GetLBTextLen(int nIndex) const
    {
        return static_cast<int>(SendMessage(CB_GETLBTEXTLEN, static_cast<WPARAM>(nIndex)));
    }
    int GetLBText(int nIndex, LPWSTR lpszText) const
    {
        return static_cast<int>(
            SendMessage(CB_GETLBTEXT, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(lpszText)));
    }
    void GetLBText(int nIndex, CString& rString) const;
    int FindStringExact(int nIndexStart, LPCWSTR lpszFind) const
    {
        return static_cast<int>(
            SendMessage(CB_FINDSTRINGEXACT, static_cast<WPARAM>(nIndexStart), reinterpret_cast<LPARAM>(lpszFind)));
    }
    [[nodiscard]] DWORD_PTR GetItemData(int nIndex) const
    {
        return static_cast<DWORD_PTR>(SendMessage(CB_GETITEMDATA, static_cast<WPARAM>(nIndex)));
    }
    int SetItemData(int nIndex, DWORD_PTR dwItemData)
    {
        return static_cast<int>(
            SendMessage(CB_SETITEMDATA, static_cast<WPARAM>(nIndex), static_cast<LPARAM>(dwItemData)));
    }
};

class KZMFC_API CListBox : public CWnd {
    DECLARE_DYNAMIC(CListBox)

public:
    using CWnd::Create;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    [[nodiscard]] int GetCount() const { return static_cast<int>(SendMessage(LB_GETCOUNT)); }
    [[nodiscard]] int GetCurSel() const { return static_cast<int>(SendMessage(LB_GETCURSEL)); }
    int SetCurSel(int nSelect) { return static_cast<int>(SendMessage(LB_SETCURSEL, static_cast<WPARAM>(nSelect))); }
    // Multiple selection: whether a row is selected (> 0).
    [[nodiscard]] int GetSel(int nIndex) const
    {
        return static_cast<int>(SendMessage(LB_GETSEL, static_cast<WPARAM>(nIndex)));
    }
    int SetSel(int nIndex, BOOL bSelect = TRUE)
    {
        return static_cast<int>(SendMessage(LB_SETSEL, static_cast<WPARAM>(bSelect), nIndex));
    }
    // Multiple selection: how many rows are selected.
    [[nodiscard]] int GetSelCount() const { return static_cast<int>(SendMessage(LB_GETSELCOUNT)); }
    // The width in pixels that the list can scroll.
    void SetHorizontalExtent(int cxExtent) { SendMessage(LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(cxExtent)); }
    int AddString(LPCWSTR lpszItem)
    {
        return static_cast<int>(SendMessage(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(lpszItem)));
    }
    int DeleteString(UINT nIndex) { return static_cast<int>(SendMessage(LB_DELETESTRING, nIndex)); }
    void ResetContent() { SendMessage(LB_RESETCONTENT); }
    void GetText(int nIndex, CString& rString) const;
};
