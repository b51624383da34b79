// GDI objects and device contexts. Part of afxwin.h.
//
// Differences from MFC: the members that dialogs need; a CDC has one handle (no separate attribute context) and no
// metafile support.
#pragma once

#include <afx.h>

#include "atltypes.h"

class CGdiObject;
class CWnd;

class KZMFC_API CGdiObject : public CObject {
    DECLARE_DYNAMIC(CGdiObject)

public:
    CGdiObject() noexcept = default;
    ~CGdiObject() override;  // deletes the GDI object it still has

    HGDIOBJ m_hObject = nullptr;

    // The object of a handle: the one that has it attached, or a temporary one that lives until the next idle time.
    static CGdiObject* PASCAL FromHandle(HGDIOBJ hObject);
    static void PASCAL DeleteTempMap();

    operator HGDIOBJ() const noexcept { return m_hObject; }
    [[nodiscard]] HGDIOBJ GetSafeHandle() const noexcept { return m_hObject; }

    BOOL Attach(HGDIOBJ hObject);
    HGDIOBJ Detach();
    BOOL DeleteObject();
    int GetObject(int nCount, LPVOID lpObject) const { return ::GetObjectW(m_hObject, nCount, lpObject); }

protected:
    // Attaches an object that was just made, or deletes it when this object has another one already.
    BOOL AttachNew(HGDIOBJ hObject);
};

class KZMFC_API CBitmap : public CGdiObject {
    DECLARE_DYNAMIC(CBitmap)

public:
    static CBitmap* PASCAL FromHandle(HBITMAP hBitmap);
    operator HBITMAP() const noexcept { return static_cast<HBITMAP>(m_hObject); }

    BOOL LoadBitmap(LPCWSTR lpszResourceName);
    BOOL LoadBitmap(UINT nIDResource) { return LoadBitmapW(MAKEINTRESOURCEW(nIDResource)); }
    BOOL CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits)
    {
        return AttachNew(::CreateBitmap(nWidth, nHeight, nPlanes, nBitcount, lpBits));
    }
    int GetBitmap(BITMAP* pBitMap) const { return ::GetObjectW(m_hObject, sizeof(BITMAP), pBitMap); }
};

class KZMFC_API CBrush : public CGdiObject {
    DECLARE_DYNAMIC(CBrush)

public:
    CBrush() noexcept = default;
    explicit CBrush(COLORREF crColor);  // throws CResourceException

    static CBrush* PASCAL FromHandle(HBRUSH hBrush);
    operator HBRUSH() const noexcept { return static_cast<HBRUSH>(m_hObject); }

    BOOL CreateSolidBrush(COLORREF crColor) { return AttachNew(::CreateSolidBrush(crColor)); }
    BOOL CreateSysColorBrush(int nIndex) { return Attach(::GetSysColorBrush(nIndex)); }
};

class KZMFC_API CPen : public CGdiObject {
    DECLARE_DYNAMIC(CPen)

public:
    CPen() noexcept = default;
    CPen(int nPenStyle, int nWidth, COLORREF crColor);  // throws CResourceException

    static CPen* PASCAL FromHandle(HPEN hPen);
    operator HPEN() const noexcept { return static_cast<HPEN>(m_hObject); }

    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor)
    {
        return AttachNew(::CreatePen(nPenStyle, nWidth, crColor));
    }
};

class KZMFC_API CFont : public CGdiObject {
    DECLARE_DYNAMIC(CFont)

public:
    static CFont* PASCAL FromHandle(HFONT hFont);
    operator HFONT() const noexcept { return static_cast<HFONT>(m_hObject); }

    BOOL CreateFontIndirect(const LOGFONTW* lpLogFont) { return AttachNew(::CreateFontIndirectW(lpLogFont)); }
    int GetLogFont(LOGFONTW* pLogFont) const { return ::GetObjectW(m_hObject, sizeof(LOGFONTW), pLogFont); }
};

class KZMFC_API CDC : public CObject {
    DECLARE_DYNAMIC(CDC)

public:
    CDC() noexcept = default;
    ~CDC() override;  // deletes a context it still has attached

    HDC m_hDC = nullptr;

    static CDC* PASCAL FromHandle(HDC hDC);
    static void PASCAL DeleteTempMap();

    operator HDC() const noexcept { return m_hDC; }
    [[nodiscard]] HDC GetSafeHdc() const noexcept { return m_hDC; }
    BOOL Attach(HDC hDC);
    HDC Detach();
    BOOL CreateCompatibleDC(CDC* pDC) { return Attach(::CreateCompatibleDC(pDC ? pDC->m_hDC : nullptr)); }
    BOOL DeleteDC();

    [[nodiscard]] int GetDeviceCaps(int nIndex) const { return ::GetDeviceCaps(m_hDC, nIndex); }
    int SaveDC() { return ::SaveDC(m_hDC); }
    BOOL RestoreDC(int nSavedDC) { return ::RestoreDC(m_hDC, nSavedDC); }

    // Each returns the object that was selected before, a temporary one unless it is attached somewhere.
    CPen* SelectObject(CPen* pPen);
    CBrush* SelectObject(CBrush* pBrush);
    CFont* SelectObject(CFont* pFont);
    CBitmap* SelectObject(CBitmap* pBitmap);

    COLORREF SetBkColor(COLORREF crColor) { return ::SetBkColor(m_hDC, crColor); }
    int SetBkMode(int nBkMode) { return ::SetBkMode(m_hDC, nBkMode); }
    COLORREF SetTextColor(COLORREF crColor) { return ::SetTextColor(m_hDC, crColor); }

    void FillRect(LPCRECT lpRect, CBrush* pBrush) { ::FillRect(m_hDC, lpRect, *pBrush); }
    void FillSolidRect(LPCRECT lpRect, COLORREF clr);
    BOOL BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop)
    {
        return ::BitBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC ? pSrcDC->m_hDC : nullptr, xSrc, ySrc, dwRop);
    }
    int DrawText(LPCWSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat)
    {
        return ::DrawTextW(m_hDC, lpszString, nCount, lpRect, nFormat);
    }
    [[nodiscard]] CSize GetTextExtent(LPCWSTR lpszString, int nCount) const;
    BOOL GetTextMetrics(TEXTMETRICW* lpMetrics) const { return ::GetTextMetricsW(m_hDC, lpMetrics); }
};

// The client area of a window (null: of the screen) for the life of the object. Throws CResourceException.
class KZMFC_API CClientDC : public CDC {
    DECLARE_DYNAMIC(CClientDC)

public:
    explicit CClientDC(CWnd* pWnd);
    ~CClientDC() override;

protected:
    HWND m_hWnd;
};

// What WM_PAINT asks for. Throws CResourceException.
class KZMFC_API CPaintDC : public CDC {
    DECLARE_DYNAMIC(CPaintDC)

public:
    explicit CPaintDC(CWnd* pWnd);
    ~CPaintDC() override;

    PAINTSTRUCT m_ps;

protected:
    HWND m_hWnd;
};
