// GDI objects and device contexts. Part of afxwin.h.
//
// Differences from MFC: the members that dialogs need; a CDC has one handle (no separate attribute context), is not
// attached to contexts that others made, and does not draw.
#pragma once

#include <afx.h>

#include "atltypes.h"

class CWnd;

class KZMFC_API CGdiObject : public CObject {
    DECLARE_DYNAMIC(CGdiObject)

public:
    CGdiObject() noexcept = default;
    ~CGdiObject() override;  // deletes the GDI object it still has

    HGDIOBJ m_hObject = nullptr;

    operator HGDIOBJ() const noexcept { return m_hObject; }
    [[nodiscard]] HGDIOBJ GetSafeHandle() const noexcept { return m_hObject; }

    // Returns FALSE for null or an object that has a handle already.
    BOOL Attach(HGDIOBJ hObject);
    HGDIOBJ Detach();
    BOOL DeleteObject();

protected:
    // Attaches an object that was just made, or deletes it when this object has another one already.
    BOOL AttachNew(HGDIOBJ hObject);
};

class KZMFC_API CBitmap : public CGdiObject {
    DECLARE_DYNAMIC(CBitmap)

public:
    operator HBITMAP() const noexcept { return static_cast<HBITMAP>(m_hObject); }

    int GetBitmap(BITMAP* pBitMap) const { return ::GetObjectW(m_hObject, sizeof(BITMAP), pBitMap); }
};

class KZMFC_API CBrush : public CGdiObject {
    DECLARE_DYNAMIC(CBrush)

public:
    operator HBRUSH() const noexcept { return static_cast<HBRUSH>(m_hObject); }

    BOOL CreateSolidBrush(COLORREF crColor) { return AttachNew(::CreateSolidBrush(crColor)); }
};

class KZMFC_API CFont : public CGdiObject {
    DECLARE_DYNAMIC(CFont)

public:
    // The object of a handle: the one that has it attached, or a temporary one that lives until the next idle time.
    static CFont* PASCAL FromHandle(HFONT hFont);
    operator HFONT() const noexcept { return static_cast<HFONT>(m_hObject); }

    BOOL CreateFontIndirect(const LOGFONTW* lpLogFont) { return AttachNew(::CreateFontIndirectW(lpLogFont)); }
};

class KZMFC_API CDC : public CObject {
    DECLARE_DYNAMIC(CDC)

public:
    CDC() noexcept = default;

    HDC m_hDC = nullptr;

    operator HDC() const noexcept { return m_hDC; }

    // Returns the font that was selected before, a temporary one unless it is attached somewhere.
    CFont* SelectObject(CFont* pFont);

    COLORREF SetBkColor(COLORREF crColor) { return ::SetBkColor(m_hDC, crColor); }
    COLORREF SetTextColor(COLORREF crColor) { return ::SetTextColor(m_hDC, crColor); }

    [[nodiscard]] CSize GetTextExtent(LPCWSTR lpszString, int nCount) const;
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
