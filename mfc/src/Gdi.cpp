// CGdiObject and its kinds, CDC and its kinds, CMenu.
#include "ThreadState.h"

IMPLEMENT_DYNAMIC(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CDC, CObject)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CMenu, CObject)

CGdiObject::~CGdiObject()
{
    DeleteObject();
}

BOOL CGdiObject::Attach(HGDIOBJ hObject)
{
    return GdiObjects::Attach(*this, hObject);
}

HGDIOBJ CGdiObject::Detach()
{
    return GdiObjects::Detach(*this);
}

BOOL CGdiObject::AttachNew(HGDIOBJ hObject)
{
    return GdiObjects::AttachNew(*this, hObject, [](HGDIOBJ unused) { ::DeleteObject(unused); });
}

BOOL CGdiObject::DeleteObject()
{
    return m_hObject ? ::DeleteObject(Detach()) : FALSE;
}

CFont* PASCAL CFont::FromHandle(HFONT hFont)
{
    return GdiObjects::FromHandle<CFont>(hFont);
}

CFont* CDC::SelectObject(CFont* pFont)
{
    return CFont::FromHandle(static_cast<HFONT>(::SelectObject(m_hDC, pFont->m_hObject)));
}

CSize CDC::GetTextExtent(LPCWSTR lpszString, int nCount) const
{
    CSize size;
    ::GetTextExtentPoint32W(m_hDC, lpszString, nCount, &size);
    return size;
}

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(pWnd ? pWnd->m_hWnd : nullptr)
{
    m_hDC = ::GetDC(m_hWnd);
    if (!m_hDC)
        AfxThrowResourceException();
}

CClientDC::~CClientDC()
{
    ::ReleaseDC(m_hWnd, m_hDC);
}

CMenu::~CMenu()
{
    DestroyMenu();
}

CMenu* PASCAL CMenu::FromHandle(HMENU hMenu)
{
    return Menus::FromHandle(hMenu);
}

BOOL CMenu::Attach(HMENU hMenu)
{
    return Menus::Attach(*this, hMenu);
}

HMENU CMenu::Detach()
{
    return Menus::Detach(*this);
}

BOOL CMenu::DestroyMenu()
{
    return m_hMenu ? ::DestroyMenu(Detach()) : FALSE;
}
