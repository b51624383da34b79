// Common controls: CImageList, CTabCtrl, CListCtrl, as MFC's afxcmn.h declares them. The members that dialogs need.
#pragma once

#include <afxwin.h>

#include <commctrl.h>

class KZMFC_API CImageList : public CObject {
    DECLARE_DYNAMIC(CImageList)

public:
    CImageList() noexcept = default;
    ~CImageList() override;  // destroys an image list it still has

    HIMAGELIST m_hImageList = nullptr;

    static CImageList* PASCAL FromHandle(HIMAGELIST hImageList);

    operator HIMAGELIST() const noexcept { return m_hImageList; }
    [[nodiscard]] HIMAGELIST GetSafeHandle() const noexcept { return m_hImageList; }
    BOOL Attach(HIMAGELIST hImageList);
    HIMAGELIST Detach();
    BOOL DeleteImageList();

    BOOL Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow);
    [[nodiscard]] int GetImageCount() const { return ::ImageList_GetImageCount(m_hImageList); }
    // Returns the index of the (first) new image, or -1. The bitmap is copied; its pixels of that colour are left out.
    int Add(CBitmap* pbmImage, COLORREF crMask) { return ::ImageList_AddMasked(m_hImageList, *pbmImage, crMask); }
};

class KZMFC_API CTabCtrl : public CWnd {
    DECLARE_DYNAMIC(CTabCtrl)

public:
    // The tab control does not own the list. Returns the one it had before.
    CImageList* SetImageList(CImageList* pImageList);
    [[nodiscard]] int GetItemCount() const { return static_cast<int>(SendMessage(TCM_GETITEMCOUNT)); }
    BOOL GetItemRect(int nItem, LPRECT lpRect) const;
    [[nodiscard]] int GetCurSel() const { return static_cast<int>(SendMessage(TCM_GETCURSEL)); }
    // Sends no TCN_SELCHANGE.
    int SetCurSel(int nItem) { return static_cast<int>(SendMessage(TCM_SETCURSEL, static_cast<WPARAM>(nItem))); }
    LONG InsertItem(int nItem, LPCWSTR lpszItem, int nImage);
    BOOL DeleteItem(int nItem) { return static_cast<BOOL>(SendMessage(TCM_DELETEITEM, static_cast<WPARAM>(nItem))); }
    // TRUE: the window rectangle for a display area; FALSE: the display area of a window rectangle.
    void AdjustRect(BOOL bLarger, LPRECT lpRect) const
    {
        SendMessage(TCM_ADJUSTRECT, static_cast<WPARAM>(bLarger), reinterpret_cast<LPARAM>(lpRect));
    }
};

class KZMFC_API CListCtrl : public CWnd {
    DECLARE_DYNAMIC(CListCtrl)

public:
    DWORD SetExtendedStyle(DWORD dwNewStyle)
    {
        return static_cast<DWORD>(SendMessage(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, static_cast<LPARAM>(dwNewStyle)));
    }
    // Width in pixels; -1: none set.
    int InsertColumn(int nCol, LPCWSTR lpszColumnHeading, int nFormat = LVCFMT_LEFT, int nWidth = -1,
                     int nSubItem = -1);
    [[nodiscard]] int GetColumnWidth(int nCol) const
    {
        return static_cast<int>(SendMessage(LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(nCol)));
    }
    BOOL SetColumnWidth(int nCol, int cx)
    {
        return static_cast<BOOL>(SendMessage(LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(nCol), MAKELPARAM(cx, 0)));
    }
    [[nodiscard]] int GetItemCount() const { return static_cast<int>(SendMessage(LVM_GETITEMCOUNT)); }
    BOOL SetItemCount(int nItems)
    {
        return static_cast<BOOL>(SendMessage(LVM_SETITEMCOUNT, static_cast<WPARAM>(nItems)));
    }
    int InsertItem(int nItem, LPCWSTR lpszItem);
    BOOL DeleteItem(int nItem) { return static_cast<BOOL>(SendMessage(LVM_DELETEITEM, static_cast<WPARAM>(nItem))); }
    BOOL SetItemText(int nItem, int nSubItem, LPCWSTR lpszText);
    BOOL SetItemState(int nItem, UINT nState, UINT nMask);
    // The next item after nItem (-1: from the start) that has the LVNI_ flags, or -1.
    [[nodiscard]] int GetNextItem(int nItem, int nFlags) const
    {
        return static_cast<int>(SendMessage(LVM_GETNEXTITEM, static_cast<WPARAM>(nItem), MAKELPARAM(nFlags, 0)));
    }
    BOOL EnsureVisible(int nItem, BOOL bPartialOK)
    {
        return static_cast<BOOL>(SendMessage(LVM_ENSUREVISIBLE, static_cast<WPARAM>(nItem), bPartialOK));
    }
};
