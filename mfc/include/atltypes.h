// CSize, CPoint and CRect: Win32's own structures with the members of ATL and MFC's atltypes.h that dialogs need.
#pragma once

#include <windows.h>

class CSize : public SIZE {
public:
    constexpr CSize() noexcept : SIZE{0, 0} {}
    constexpr CSize(int initCX, int initCY) noexcept : CSize(SIZE{initCX, initCY}) {}
    constexpr CSize(SIZE initSize) noexcept : SIZE(initSize) {}

    constexpr BOOL operator==(SIZE size) const noexcept { return cx == size.cx && cy == size.cy; }
    constexpr BOOL operator!=(SIZE size) const noexcept { return !(*this == size); }
};

class CPoint : public POINT {
public:
    constexpr CPoint() noexcept : POINT{0, 0} {}
    constexpr CPoint(int initX, int initY) noexcept : CPoint(POINT{initX, initY}) {}
    constexpr CPoint(POINT initPt) noexcept : POINT(initPt) {}
    explicit CPoint(LPARAM dwPoint) noexcept
        : POINT{static_cast<short>(LOWORD(dwPoint)), static_cast<short>(HIWORD(dwPoint))}
    {
    }

    constexpr BOOL operator==(POINT point) const noexcept { return x == point.x && y == point.y; }
    constexpr BOOL operator!=(POINT point) const noexcept { return !(*this == point); }
};

class CRect : public RECT {
public:
    constexpr CRect() noexcept : RECT{0, 0, 0, 0} {}
    constexpr CRect(int l, int t, int r, int b) noexcept : CRect(RECT{l, t, r, b}) {}
    constexpr CRect(const RECT& srcRect) noexcept : RECT(srcRect) {}
    constexpr CRect(LPCRECT lpSrcRect) noexcept : RECT(*lpSrcRect) {}
    constexpr CRect(POINT point, SIZE size) noexcept
        : CRect(RECT{point.x, point.y, point.x + size.cx, point.y + size.cy})
    {
    }

    [[nodiscard]] constexpr int Width() const noexcept { return right - left; }
    [[nodiscard]] constexpr int Height() const noexcept { return bottom - top; }
    [[nodiscard]] constexpr CSize Size() const noexcept { return {Width(), Height()}; }
    [[nodiscard]] constexpr CPoint TopLeft() const noexcept { return {left, top}; }
    [[nodiscard]] constexpr CPoint CenterPoint() const noexcept { return {(left + right) / 2, (top + bottom) / 2}; }

    operator LPRECT() noexcept { return this; }
    operator LPCRECT() const noexcept { return this; }

    [[nodiscard]] constexpr BOOL IsRectEmpty() const noexcept { return left >= right || top >= bottom; }
    constexpr void InflateRect(int x, int y) noexcept { InflateRect(x, y, x, y); }
    constexpr void InflateRect(int l, int t, int r, int b) noexcept
    {
        left -= l;
        top -= t;
        right += r;
        bottom += b;
    }
    constexpr void DeflateRect(int x, int y) noexcept { InflateRect(-x, -y); }
    constexpr void DeflateRect(int l, int t, int r, int b) noexcept { InflateRect(-l, -t, -r, -b); }
    constexpr void OffsetRect(int x, int y) noexcept
    {
        left += x;
        right += x;
        top += y;
        bottom += y;
    }
    BOOL IntersectRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept { return ::IntersectRect(this, lpRect1, lpRect2); }
    BOOL UnionRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept { return ::UnionRect(this, lpRect1, lpRect2); }
    BOOL EqualRect(LPCRECT lpRect) const noexcept { return ::EqualRect(this, lpRect); }

    constexpr BOOL operator==(const RECT& rect) const noexcept
    {
        return left == rect.left && top == rect.top && right == rect.right && bottom == rect.bottom;
    }
    constexpr BOOL operator!=(const RECT& rect) const noexcept { return !(*this == rect); }
};
