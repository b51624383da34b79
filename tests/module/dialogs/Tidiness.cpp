#include "Tidiness.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ControlText.h"

namespace {

struct Placed {
    HWND window;
    CRect place;
    bool isBox;
};

std::wstring ClassOf(HWND window)
{
    wchar_t name[64];
    return {name, static_cast<std::size_t>(::GetClassNameW(window, name, static_cast<int>(std::size(name))))};
}

DWORD StyleOf(HWND window)
{
    return static_cast<DWORD>(::GetWindowLongW(window, GWL_STYLE));
}

// A group box, or a frame that is drawn around controls as one.
bool IsBox(HWND window)
{
    const std::wstring name = ClassOf(window);
    return (name == L"Button" && (StyleOf(window) & BS_TYPEMASK) == BS_GROUPBOX) ||
           (name == L"Static" && (StyleOf(window) & SS_TYPEMASK) == SS_ETCHEDFRAME);
}

SIZE TextSize(HWND window, const std::wstring& text)
{
    const HDC dc = ::GetDC(window);
    const HGDIOBJ old = ::SelectObject(dc, reinterpret_cast<HFONT>(::SendMessageW(window, WM_GETFONT, 0, 0)));
    RECT rect{};
    ::DrawTextW(dc, text.c_str(), -1, &rect, DT_CALCRECT | DT_SINGLELINE);
    ::SelectObject(dc, old);
    ::ReleaseDC(window, dc);
    return {rect.right, rect.bottom};
}

// What a control needs beside its text: a check box or radio button its mark.
int MarkWidth(HWND window)
{
    if (ClassOf(window) != L"Button")
        return 0;
    const DWORD type = StyleOf(window) & BS_TYPEMASK;
    const bool marked = type == BS_AUTOCHECKBOX || type == BS_AUTORADIOBUTTON;
    return marked ? ::GetSystemMetrics(SM_CXMENUCHECK) : 0;
}

void ExpectTextFits(const Placed& control)
{
    const std::wstring name = ClassOf(control.window);
    if (name != L"Button" && name != L"Static")
        return;
    const std::wstring text = ControlText(*CWnd::FromHandle(control.window)).c_str();
    EXPECT_LE(TextSize(control.window, text).cx + MarkWidth(control.window), control.place.Width())
        << ::GetDlgCtrlID(control.window) << " " << testing::PrintToString(text);
    EXPECT_LE(TextSize(control.window, text).cy, control.place.Height() + 1) << ::GetDlgCtrlID(control.window);
}

void ExpectApart(const Placed& first, const Placed& second)
{
    CRect common;
    if (!::IntersectRect(&common, &first.place, &second.place))
        return;
    const bool inside = (first.isBox && common == second.place) || (second.isBox && common == first.place);
    EXPECT_TRUE(inside) << ::GetDlgCtrlID(first.window) << " over " << ::GetDlgCtrlID(second.window);
}

}  // namespace

CRect PlaceOf(HWND control)
{
    CRect place;
    ::GetWindowRect(control, &place);
    ::MapWindowPoints(nullptr, ::GetParent(control), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

void ExpectTidy(const CWnd& dialog)
{
    CRect client;
    dialog.GetClientRect(&client);
    std::vector<Placed> controls;
    for (HWND child = ::GetWindow(dialog.m_hWnd, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (!(StyleOf(child) & WS_VISIBLE) || ClassOf(child) == L"#32770")
            continue;
        const Placed control{child, PlaceOf(child), IsBox(child)};
        CRect common;
        EXPECT_TRUE(::IntersectRect(&common, &control.place, &client) && common == control.place)
            << ::GetDlgCtrlID(child) << " leaves its dialog";
        ExpectTextFits(control);
        for (const Placed& other : controls)
            ExpectApart(control, other);
        controls.push_back(control);
    }
    EXPECT_FALSE(controls.empty());
}
