// CGdiObject and its kinds, CDC and its kinds, CMenu.
#include "ThreadState.h"

IMPLEMENT_DYNAMIC(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CDC, CObject)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)
IMPLEMENT_DYNAMIC(CMenu, CObject)

CGdiObject::~CGdiObject()
{
    DeleteObject();
}

CGdiObject* PASCAL CGdiObject::FromHandle(HGDIOBJ hObject)
{
    return CurrentThread().gdiObjects.FromHandle(hObject);
}

void PASCAL CGdiObject::DeleteTempMap()
{
    CurrentThread().gdiObjects.DeleteTemporaries();
}

BOOL CGdiObject::Attach(HGDIOBJ hObject)
{
    if (!hObject || m_hObject)
        return FALSE;
    CurrentThread().gdiObjects.SetPermanent(hObject, this);
    m_hObject = hObject;
    return TRUE;
}

HGDIOBJ CGdiObject::Detach()
{
    if (ThreadState* thread = CurrentThreadIfAny(); thread && m_hObject)
        thread->gdiObjects.Remove(m_hObject);
    return std::exchange(m_hObject, nullptr);
}

BOOL CGdiObject::AttachNew(HGDIOBJ hObject)
{
    if (Attach(hObject))
        return TRUE;
    ::DeleteObject(hObject);
    return FALSE;
}

BOOL CGdiObject::DeleteObject()
{
    return m_hObject ? ::DeleteObject(Detach()) : FALSE;
}

CBitmap* PASCAL CBitmap::FromHandle(HBITMAP hBitmap)
{
    return CurrentThread().gdiObjects.FromHandle<CBitmap>(hBitmap);
}

CBrush* PASCAL CBrush::FromHandle(HBRUSH hBrush)
{
    return CurrentThread().gdiObjects.FromHandle<CBrush>(hBrush);
}

CPen* PASCAL CPen::FromHandle(HPEN hPen)
{
    return CurrentThread().gdiObjects.FromHandle<CPen>(hPen);
}

CFont* PASCAL CFont::FromHandle(HFONT hFont)
{
    return CurrentThread().gdiObjects.FromHandle<CFont>(hFont);
}

BOOL CBitmap::LoadBitmap(LPCWSTR lpszResourceName)
{
    const HINSTANCE module = AfxFindResourceHandle(lpszResourceName, reinterpret_cast<LPCWSTR>(RT_BITMAP));
    return AttachNew(::LoadBitmapW(module, lpszResourceName));
}

CBrush::CBrush(COLORREF crColor)
{
    if (!CreateSolidBrush(crColor))
        AfxThrowResourceException();
}

CPen::CPen(int nPenStyle, int nWidth, COLORREF crColor)
{
    if (!CreatePen(nPenStyle, nWidth, crColor))
        AfxThrowResourceException();
}

CDC::~CDC()
{
    DeleteDC();
}

CDC* PASCAL CDC::FromHandle(HDC hDC)
{
    return CurrentThread().contexts.FromHandle(hDC);
}

void PASCAL CDC::DeleteTempMap()
{
    CurrentThread().contexts.DeleteTemporaries();
}

BOOL CDC::Attach(HDC hDC)
{
    if (!hDC || m_hDC)
        return FALSE;
    CurrentThread().contexts.SetPermanent(hDC, this);
    m_hDC = hDC;
    return TRUE;
}

HDC CDC::Detach()
{
    if (ThreadState* thread = CurrentThreadIfAny(); thread && m_hDC)
        thread->contexts.Remove(m_hDC);
    return std::exchange(m_hDC, nullptr);
}

BOOL CDC::DeleteDC()
{
    return m_hDC ? ::DeleteDC(Detach()) : FALSE;
}

CPen* CDC::SelectObject(CPen* pPen)
{
    return CPen::FromHandle(static_cast<HPEN>(::SelectObject(m_hDC, pPen->m_hObject)));
}

CBrush* CDC::SelectObject(CBrush* pBrush)
{
    return CBrush::FromHandle(static_cast<HBRUSH>(::SelectObject(m_hDC, pBrush->m_hObject)));
}

CFont* CDC::SelectObject(CFont* pFont)
{
    return CFont::FromHandle(static_cast<HFONT>(::SelectObject(m_hDC, pFont->m_hObject)));
}

CBitmap* CDC::SelectObject(CBitmap* pBitmap)
{
    return CBitmap::FromHandle(static_cast<HBITMAP>(::SelectObject(m_hDC, pBitmap->m_hObject)));
}

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr)
{
    ::SetBkColor(m_hDC, clr);
    ::ExtTextOutW(m_hDC, 0, 0, ETO_OPAQUE, lpRect, nullptr, 0, nullptr);
}

CSize CDC::GetTextExtent(LPCWSTR lpszString, int nCount) const
{
    CSize size;
    ::GetTextExtentPoint32W(m_hDC, lpszString, nCount, &size);
    return size;
}

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(pWnd ? pWnd->m_hWnd : nullptr)
{
    if (!Attach(::GetDC(m_hWnd)))
        AfxThrowResourceException();
}

CClientDC::~CClientDC()
{
    ::ReleaseDC(m_hWnd, Detach());
}

CPaintDC::CPaintDC(CWnd* pWnd) : m_ps{}, m_hWnd(pWnd->m_hWnd)
{
    if (!Attach(::BeginPaint(m_hWnd, &m_ps)))
        AfxThrowResourceException();
}

CPaintDC::~CPaintDC()
{
    ::EndPaint(m_hWnd, &m_ps);
    Detach();
}

CMenu::~CMenu()
{
    DestroyMenu();
}

CMenu* PASCAL CMenu::FromHandle(HMENU hMenu)
{
    return CurrentThread().menus.FromHandle(hMenu);
}

void PASCAL CMenu::DeleteTempMap()
{
    CurrentThread().menus.DeleteTemporaries();
}

BOOL CMenu::Attach(HMENU hMenu)
{
    if (!hMenu || m_hMenu)
        return FALSE;
    CurrentThread().menus.SetPermanent(hMenu, this);
    m_hMenu = hMenu;
    return TRUE;
}

HMENU CMenu::Detach()
{
    if (ThreadState* thread = CurrentThreadIfAny(); thread && m_hMenu)
        thread->menus.Remove(m_hMenu);
    return std::exchange(m_hMenu, nullptr);
}

BOOL CMenu::LoadMenu(LPCWSTR lpszResourceName)
{
    const HINSTANCE module = AfxFindResourceHandle(lpszResourceName, reinterpret_cast<LPCWSTR>(RT_MENU));
    return Attach(::LoadMenuW(module, lpszResourceName));
}

BOOL CMenu::DestroyMenu()
{
    return m_hMenu ? ::DestroyMenu(Detach()) : FALSE;
}
