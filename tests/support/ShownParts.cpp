#include "ShownParts.h"

namespace kztest {

int ScreenDpi()
{
    const HDC screen = ::GetDC(nullptr);
    const int dpi = ::GetDeviceCaps(screen, LOGPIXELSY);
    ::ReleaseDC(nullptr, screen);
    return dpi;
}

CSize SmallestScreen()
{
    constexpr int TaskBar = 40;  // at 96 dots per inch
    CSize screen = ScreenDpi() <= 96 ? CSize(800, 600) : ScreenDpi() <= 144 ? CSize(1366, 768) : CSize(1920, 1080);
    screen.cy -= ::MulDiv(TaskBar, ScreenDpi(), 96);
    return screen;
}

CRect PlaceIn(HWND around, HWND window)
{
    CRect place;
    ::GetWindowRect(window, &place);
    ::MapWindowPoints(nullptr, around, reinterpret_cast<POINT*>(static_cast<RECT*>(&place)), 2);
    return place;
}

CRect ShownPart(HWND dialog, HWND control)
{
    CRect shown = PlaceIn(dialog, control);
    for (HWND window = control; window != dialog; window = ::GetParent(window)) {
        CRect region;
        const CRect place = PlaceIn(dialog, window);
        CRect part = place;
        if (::GetWindowRgnBox(window, &region) != ERROR)
            part = CRect(place.left + region.left, place.top + region.top, place.left + region.right,
                         place.top + region.bottom);
        shown.IntersectRect(&shown, &part);
    }
    CRect client;
    ::GetClientRect(dialog, &client);
    shown.IntersectRect(&shown, &client);
    return shown;
}

bool IsCut(HWND dialog)
{
    return (::GetWindowLongPtrW(dialog, GWL_STYLE) & WS_VSCROLL) != 0;
}

}  // namespace kztest
