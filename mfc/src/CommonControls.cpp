#include "ThreadState.h"

IMPLEMENT_DYNAMIC(CImageList, CObject)
IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)
IMPLEMENT_DYNAMIC(CListCtrl, CWnd)

namespace {

BOOL CreateCommonControl(CWnd& control, DWORD classes, LPCWSTR className, DWORD style, const RECT& rectangle,
                         CWnd* parent, UINT id)
{
    const INITCOMMONCONTROLSEX wanted{sizeof wanted, classes};
    return ::InitCommonControlsEx(&wanted) &&
           control.CreateEx(0, className, nullptr, style | WS_CHILD, rectangle, parent, id);
}

}  // namespace

CImageList::~CImageList()
{
    DeleteImageList();
}

CImageList* PASCAL CImageList::FromHandle(HIMAGELIST hImageList)
{
    return CurrentThread().imageLists.FromHandle(hImageList);
}

void PASCAL CImageList::DeleteTempMap()
{
    CurrentThread().imageLists.DeleteTemporaries();
}

BOOL CImageList::Attach(HIMAGELIST hImageList)
{
    if (!hImageList || m_hImageList)
        return FALSE;
    CurrentThread().imageLists.SetPermanent(hImageList, this);
    m_hImageList = hImageList;
    return TRUE;
}

HIMAGELIST CImageList::Detach()
{
    if (ThreadState* thread = CurrentThreadIfAny(); thread && m_hImageList)
        thread->imageLists.Remove(m_hImageList);
    return std::exchange(m_hImageList, nullptr);
}

BOOL CImageList::DeleteImageList()
{
    return m_hImageList ? ::ImageList_Destroy(Detach()) : FALSE;
}

BOOL CImageList::Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow)
{
    const HIMAGELIST list = ::ImageList_Create(cx, cy, nFlags, nInitial, nGrow);
    if (Attach(list))
        return TRUE;
    ::ImageList_Destroy(list);
    return FALSE;
}

int CImageList::Add(CBitmap* pbmImage, CBitmap* pbmMask)
{
    return ::ImageList_Add(m_hImageList, *pbmImage, pbmMask ? static_cast<HBITMAP>(*pbmMask) : nullptr);
}

int CImageList::Add(CBitmap* pbmImage, COLORREF crMask)
{
    return ::ImageList_AddMasked(m_hImageList, *pbmImage, crMask);
}

BOOL CTabCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CreateCommonControl(*this, ICC_TAB_CLASSES, WC_TABCONTROLW, dwStyle, rect, pParentWnd, nID);
}

CImageList* CTabCtrl::GetImageList() const
{
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(SendMessage(TCM_GETIMAGELIST)));
}

CImageList* CTabCtrl::SetImageList(CImageList* pImageList)
{
    const HIMAGELIST list = pImageList ? pImageList->m_hImageList : nullptr;
    return CImageList::FromHandle(
        reinterpret_cast<HIMAGELIST>(SendMessage(TCM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(list))));
}

BOOL CTabCtrl::GetItem(int nItem, TCITEMW* pTabCtrlItem) const
{
    return static_cast<BOOL>(
        SendMessage(TCM_GETITEMW, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(pTabCtrlItem)));
}

BOOL CTabCtrl::SetItem(int nItem, TCITEMW* pTabCtrlItem)
{
    return static_cast<BOOL>(
        SendMessage(TCM_SETITEMW, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(pTabCtrlItem)));
}

BOOL CTabCtrl::GetItemRect(int nItem, LPRECT lpRect) const
{
    return static_cast<BOOL>(
        SendMessage(TCM_GETITEMRECT, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(lpRect)));
}

LONG CTabCtrl::InsertItem(int nItem, TCITEMW* pTabCtrlItem)
{
    return static_cast<LONG>(
        SendMessage(TCM_INSERTITEMW, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(pTabCtrlItem)));
}

LONG CTabCtrl::InsertItem(int nItem, LPCWSTR lpszItem)
{
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = const_cast<LPWSTR>(lpszItem);  // the control copies it
    return InsertItem(nItem, &item);
}

LONG CTabCtrl::InsertItem(int nItem, LPCWSTR lpszItem, int nImage)
{
    TCITEMW item{};
    item.mask = TCIF_TEXT | TCIF_IMAGE;
    item.pszText = const_cast<LPWSTR>(lpszItem);
    item.iImage = nImage;
    return InsertItem(nItem, &item);
}

BOOL CListCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CreateCommonControl(*this, ICC_LISTVIEW_CLASSES, WC_LISTVIEWW, dwStyle, rect, pParentWnd, nID);
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

CString CListCtrl::GetItemText(int nItem, int nSubItem) const
{
    // The control does not tell a text's length; a copy that fills the buffer may have been cut off.
    CString text;
    LVITEMW item{};
    item.iSubItem = nSubItem;
    LRESULT copied = 0;
    for (int size = 128; copied >= item.cchTextMax - 1; size *= 2) {
        item.pszText = text.GetBuffer(size);
        item.cchTextMax = size;
        copied = SendMessage(LVM_GETITEMTEXTW, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(&item));
    }
    text.ReleaseBuffer(static_cast<int>(copied));
    return text;
}

BOOL CListCtrl::SetItemState(int nItem, UINT nState, UINT nMask)
{
    LVITEMW item{};
    item.state = nState;
    item.stateMask = nMask;
    return static_cast<BOOL>(
        SendMessage(LVM_SETITEMSTATE, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(&item)));
}

BOOL CListCtrl::SetItemData(int nItem, DWORD_PTR dwData)
{
    LVITEMW item{};
    item.mask = LVIF_PARAM;
    item.iItem = nItem;
    item.lParam = static_cast<LPARAM>(dwData);
    return static_cast<BOOL>(SendMessage(LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item)));
}

DWORD_PTR CListCtrl::GetItemData(int nItem) const
{
    LVITEMW item{};
    item.mask = LVIF_PARAM;
    item.iItem = nItem;
    SendMessage(LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    return static_cast<DWORD_PTR>(item.lParam);
}
