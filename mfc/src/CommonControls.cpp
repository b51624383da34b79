#include "ThreadState.h"

IMPLEMENT_DYNAMIC(CImageList, CObject)
IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)
IMPLEMENT_DYNAMIC(CListCtrl, CWnd)

CImageList::~CImageList()
{
    DeleteImageList();
}

CImageList* PASCAL CImageList::FromHandle(HIMAGELIST hImageList)
{
    return ImageLists::FromHandle(hImageList);
}

BOOL CImageList::Attach(HIMAGELIST hImageList)
{
    return ImageLists::Attach(*this, hImageList);
}

HIMAGELIST CImageList::Detach()
{
    return ImageLists::Detach(*this);
}

BOOL CImageList::DeleteImageList()
{
    return m_hImageList ? ::ImageList_Destroy(Detach()) : FALSE;
}

BOOL CImageList::Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow)
{
    return ImageLists::AttachNew(*this, ::ImageList_Create(cx, cy, nFlags, nInitial, nGrow),
                                 [](HIMAGELIST unused) { ::ImageList_Destroy(unused); });
}

CImageList* CTabCtrl::SetImageList(CImageList* pImageList)
{
    const HIMAGELIST list = pImageList ? pImageList->m_hImageList : nullptr;
    return CImageList::FromHandle(
        reinterpret_cast<HIMAGELIST>(SendMessage(TCM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(list))));
}

BOOL CTabCtrl::GetItemRect(int nItem, LPRECT lpRect) const
{
    return static_cast<BOOL>(
        SendMessage(TCM_GETITEMRECT, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(lpRect)));
}

LONG CTabCtrl::InsertItem(int nItem, LPCWSTR lpszItem, int nImage)
{
    TCITEMW item{};
    item.mask = TCIF_TEXT | TCIF_IMAGE;
    item.pszText = const_cast<LPWSTR>(lpszItem);  // the control copies it
    item.iImage = nImage;
    return static_cast<LONG>(SendMessage(TCM_INSERTITEMW, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(&item)));
}

int CListCtrl::InsertColumn(int nCol, LPCWSTR lpszColumnHeading, int nFormat, int nWidth, int nSubItem)
{
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_FMT;
    column.pszText = const_cast<LPWSTR>(lpszColumnHeading);
    column.fmt = nFormat;
    if (nWidth != -1) {
        column.mask |= LVCF_WIDTH;
        column.cx = nWidth;
    }
    if (nSubItem != -1) {
        column.mask |= LVCF_SUBITEM;
        column.iSubItem = nSubItem;
    }
    return static_cast<int>(
        SendMessage(LVM_INSERTCOLUMNW, static_cast<WPARAM>(nCol), reinterpret_cast<LPARAM>(&column)));
}

int CListCtrl::InsertItem(int nItem, LPCWSTR lpszItem)
{
    LVITEMW item{};
    item.mask = LVIF_TEXT;
    item.iItem = nItem;
    item.pszText = const_cast<LPWSTR>(lpszItem);
    return static_cast<int>(SendMessage(LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item)));
}

BOOL CListCtrl::SetItemText(int nItem, int nSubItem, LPCWSTR lpszText)
{
    LVITEMW item{};
    item.iSubItem = nSubItem;
    item.pszText = const_cast<LPWSTR>(lpszText);
    return static_cast<BOOL>(
        SendMessage(LVM_SETITEMTEXTW, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(&item)));
}

BOOL CListCtrl::SetItemState(int nItem, UINT nState, UINT nMask)
{
    LVITEMW item{};
    item.state = nState;
    item.stateMask = nMask;
    return static_cast<BOOL>(
        SendMessage(LVM_SETITEMSTATE, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(&item)));
}
