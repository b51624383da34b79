#include "DialogLayout.h"

#include <gtest/gtest.h>

#include <afxwin.h>

#include <commctrl.h>

#include <string>
#include <vector>

#include "Controls.h"

namespace kztest {

namespace {

struct Placed {
    HWND window;
    std::wstring kind;
    CRect place;
};

DWORD StyleOf(HWND window)
{
    return static_cast<DWORD>(::GetWindowLongPtrW(window, GWL_STYLE));
}

DWORD ButtonType(HWND button)
{
    return StyleOf(button) & BS_TYPEMASK;
}

// What may hold other controls.
bool IsFrame(const Placed& control)
{
    if (control.kind == L"Button")
        return ButtonType(control.window) == BS_GROUPBOX;
    if (control.kind == L"Static")
        return (StyleOf(control.window) & SS_TYPEMASK) == SS_ETCHEDFRAME;
    return control.kind == L"SysTabControl32";
}

// Space that a button takes beside its text: the mark of check boxes and radio buttons.
int MarkWidth(HWND button)
{
    switch (ButtonType(button)) {
    case BS_CHECKBOX:
    case BS_AUTOCHECKBOX:
    case BS_3STATE:
    case BS_AUTO3STATE:
    case BS_RADIOBUTTON:
    case BS_AUTORADIOBUTTON:
        return ::GetSystemMetrics(SM_CXMENUCHECK);
    default:
        return 0;
    }
}

CSize TextSize(HWND window, const std::wstring& text, int width)
{
    const bool wraps = ClassOf(window) == L"Static" || (StyleOf(window) & BS_MULTILINE) != 0;
    CRect rectangle(0, 0, width, 0);
    const HDC dc = ::GetDC(window);
    const HGDIOBJ before = ::SelectObject(dc, reinterpret_cast<HFONT>(::SendMessageW(window, WM_GETFONT, 0, 0)));
    ::DrawTextW(dc, text.c_str(), -1, &rectangle, DT_CALCRECT | (wraps ? DT_WORDBREAK : DT_SINGLELINE));
    ::SelectObject(dc, before);
    ::ReleaseDC(window, dc);
    return rectangle.Size();
}

void ExpectTextFits(const Placed& control)
{
    const bool isStatic = control.kind == L"Static";
    const std::wstring text = control.kind == L"Button" || isStatic ? TextOf(control.window) : std::wstring();
    if (text.empty() || (isStatic && (StyleOf(control.window) & SS_ELLIPSISMASK) != 0))
        return;
    const int mark = isStatic ? 0 : MarkWidth(control.window);
    // A box as wide as its mark shows no text: it has one for screen readers.
    if (control.place.Width() < 2 * mark)
        return;
    const CSize needed = TextSize(control.window, text, control.place.Width() - mark);
    EXPECT_LE(needed.cx + mark, control.place.Width())
        << "text of control " << ::GetDlgCtrlID(control.window) << ": " << testing::PrintToString(text);
    EXPECT_LE(needed.cy, control.place.Height() + 1)
        << "text of control " << ::GetDlgCtrlID(control.window) << ": " << testing::PrintToString(text);
}

// A combo box shows its items beside its button.
void ExpectItemsFit(const Placed& combo)
{
    const auto count = ::SendMessageW(combo.window, CB_GETCOUNT, 0, 0);
    for (LRESULT item = 0; item < count; ++item) {
        std::wstring text(static_cast<size_t>(::SendMessageW(combo.window, CB_GETLBTEXTLEN, item, 0)), L'\0');
        ::SendMessageW(combo.window, CB_GETLBTEXT, item, reinterpret_cast<LPARAM>(text.data()));
        const int needed = TextSize(combo.window, text, 0).cx + ::GetSystemMetrics(SM_CXVSCROLL);
        EXPECT_LE(needed, combo.place.Width())
            << "item of control " << ::GetDlgCtrlID(combo.window) << ": " << testing::PrintToString(text);
    }
}

// Tabs that do not fit in a row are reached by arrows only.
void ExpectTabsFit(const Placed& tab)
{
    RECT last{};
    TabCtrl_GetItemRect(tab.window, TabCtrl_GetItemCount(tab.window) - 1, &last);
    EXPECT_LE(last.right, tab.place.Width()) << "tabs of control " << ::GetDlgCtrlID(tab.window);
}

void ExpectCaptionFits(HWND dialog)
{
    if ((StyleOf(dialog) & WS_CAPTION) != WS_CAPTION)
        return;
    const std::wstring text = TextOf(dialog);
    TITLEBARINFO bar{};
    bar.cbSize = sizeof bar;
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    ASSERT_TRUE(::GetTitleBarInfo(dialog, &bar));
    ASSERT_TRUE(::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0));
    const HDC dc = ::GetDC(dialog);
    const HFONT font = ::CreateFontIndirectW(&metrics.lfCaptionFont);
    const HGDIOBJ before = ::SelectObject(dc, font);
    SIZE size{};
    ::GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size);
    ::SelectObject(dc, before);
    ::DeleteObject(font);
    ::ReleaseDC(dialog, dc);
    // Before the text there is an icon, behind it at least one button.
    const int others = 2 * ::GetSystemMetrics(SM_CXSIZE);
    EXPECT_LE(size.cx + others, bar.rcTitleBar.right - bar.rcTitleBar.left)
        << "title: " << testing::PrintToString(text);
}

void ExpectApart(const Placed& one, const Placed& other)
{
    CRect common;
    if (!common.IntersectRect(&one.place, &other.place))
        return;
    const bool held = (IsFrame(one) && common == other.place) || (IsFrame(other) && common == one.place);
    EXPECT_TRUE(held) << "controls " << ::GetDlgCtrlID(one.window) << " and " << ::GetDlgCtrlID(other.window)
                      << " lie over each other";
}

}  // namespace

void ExpectNothingClippedOrOverlapping(HWND dialog)
{
    CRect client;
    ::GetClientRect(dialog, &client);
    ExpectCaptionFits(dialog);
    std::vector<Placed> controls;
    for (HWND child = ::GetWindow(dialog, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        if ((StyleOf(child) & WS_VISIBLE) == 0)
            continue;
        Placed control{child, ClassOf(child), {}};
        ::GetWindowRect(child, &control.place);
        ::MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(static_cast<RECT*>(&control.place)), 2);
        CRect inside;
        EXPECT_TRUE(inside.IntersectRect(&control.place, &client) && inside == control.place)
            << "control " << ::GetDlgCtrlID(child) << " leaves its dialog";
        ExpectTextFits(control);
        if (control.kind == L"ComboBox")
            ExpectItemsFit(control);
        if (control.kind == L"SysTabControl32")
            ExpectTabsFit(control);
        for (const Placed& other : controls)
            ExpectApart(control, other);
        if (control.kind == L"#32770")
            ExpectNothingClippedOrOverlapping(child);
        controls.push_back(control);
    }
}

}  // namespace kztest
