// Where a control stands.
#pragma once

#include <afxwin.h>

// The control's place in client coordinates of its parent.
[[nodiscard]] inline CRect PlaceOf(HWND control)
{
    CRect place;
    ::GetWindowRect(control, &place);
    ::MapWindowPoints(nullptr, ::GetParent(control), reinterpret_cast<POINT*>(&place), 2);
    return place;
}
