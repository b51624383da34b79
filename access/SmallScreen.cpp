#include "SmallScreen.h"

#include <algorithm>
#include <array>
#include <cwchar>
#include <utility>

namespace {

constexpr int LineUnits = 8;    // dialog units of one line of text
constexpr int MarginUnits = 7;  // around a control that comes into view
constexpr std::array ClosingIds{IDOK, IDCANCEL};

RECT WorkAreaOf(HWND window) noexcept
{
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    ::GetMonitorInfoW(::MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor);
    return monitor.rcWork;
}

int HeightOf(const RECT& rectangle) noexcept
{
    return rectangle.bottom - rectangle.top;
}

int WidthOf(const RECT& rectangle) noexcept
{
    return rectangle.right - rectangle.left;
}

RECT WindowPlace(HWND window) noexcept
{
    RECT place{};
    ::GetWindowRect(window, &place);
    return place;
}

// Where a window stands in the client area of a window around it.
RECT PlaceIn(HWND around, HWND window) noexcept
{
    RECT place = WindowPlace(window);
    ::MapWindowPoints(nullptr, around, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

void MoveTo(HWND child, LONG left, LONG top) noexcept
{
    ::SetWindowPos(child, nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

int PixelsOf(HWND dialog, int verticalUnits) noexcept
{
    RECT units{0, 0, 0, verticalUnits};
    ::MapDialogRect(dialog, &units);
    return units.bottom;
}

bool HasStyle(HWND window, DWORD style) noexcept
{
    return (static_cast<DWORD>(::GetWindowLongPtrW(window, GWL_STYLE)) & style) != 0;
}

// What has its own use for PgUp and PgDn.
bool TakesPageKeys(HWND window) noexcept
{
    std::array<wchar_t, 32> name{};
    ::GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    if (std::wcscmp(name.data(), L"Edit") == 0)
        return HasStyle(window, ES_MULTILINE);
    constexpr std::array Lists{L"ComboBox", L"ListBox", L"SysListView32", L"SysTreeView32"};
    return std::any_of(Lists.begin(), Lists.end(), [&](auto list) { return std::wcscmp(list, name.data()) == 0; });
}

}  // namespace

void SmallScreen::Fit(HWND dialog)
{
    if (IsCut())
        Restore();
    const RECT workArea = WorkAreaOf(dialog);
    // What can grow can shrink too, as far as it allows.
    if (HasStyle(dialog, WS_THICKFRAME) && !::IsZoomed(dialog))
        Shrink(dialog, workArea);
    const int height = HeightOf(WindowPlace(dialog));
    if (height > HeightOf(workArea))
        Cut(dialog, workArea, height);
}

void SmallScreen::Shrink(HWND dialog, const RECT& workArea)
{
    const RECT place = WindowPlace(dialog);
    if (WidthOf(place) > WidthOf(workArea) || HeightOf(place) > HeightOf(workArea))
        MoveWindow(dialog, workArea, std::min(WidthOf(place), WidthOf(workArea)),
                   std::min(HeightOf(place), HeightOf(workArea)));
}

void SmallScreen::Forget() noexcept
{
    if (m_focusHook)
        ::UnhookWindowsHookEx(std::exchange(m_focusHook, nullptr));
    Leave();
    m_dialog = nullptr;
}

// The row of OK and Cancel, whatever stands beside them included; empty when there is none.
RECT SmallScreen::FindFooter(HWND dialog)
{
    RECT footer{};
    for (const int id : ClosingIds) {
        const HWND button = ::GetDlgItem(dialog, id);
        const RECT place = button ? PlaceIn(dialog, button) : RECT{};
        ::UnionRect(&footer, &footer, &place);
    }
    m_footer.clear();
    for (HWND child = ::GetWindow(dialog, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        const RECT place = PlaceIn(dialog, child);
        if (HasStyle(child, WS_VISIBLE) && place.top < footer.bottom && place.bottom > footer.top)
            m_footer.push_back(child);
    }
    return footer;
}

// The lowest edge of what stands above the footer.
LONG SmallScreen::ContentBottom(HWND dialog, LONG lowest, LONG footerTop) const
{
    for (HWND child = ::GetWindow(dialog, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (HasStyle(child, WS_VISIBLE) && !IsFooter(child))
            lowest = std::max(lowest, PlaceIn(dialog, child).bottom);
    }
    return std::min(lowest, footerTop);
}

void SmallScreen::Cut(HWND dialog, const RECT& workArea, int windowHeight)
{
    RECT client{};
    ::GetClientRect(dialog, &client);
    const RECT footer = FindFooter(dialog);
    const LONG gap = client.bottom - footer.bottom;
    const LONG contentHeight = ContentBottom(dialog, footer.top - gap, footer.top);
    m_cutHeight = windowHeight - HeightOf(workArea);
    m_view = {0, 0, client.right, contentHeight - m_cutHeight};
    m_line = PixelsOf(dialog, LineUnits);
    if (::IsRectEmpty(&footer) || m_view.bottom < m_line)
        return;  // there is no place to scroll in

    Enlist();
    m_dialog = dialog;
    m_contentHeight = contentHeight;
    m_position = m_wheel = 0;
    MoveFooter(-m_cutHeight);
    ::SetWindowLongPtrW(dialog, GWL_STYLE, ::GetWindowLongPtrW(dialog, GWL_STYLE) | WS_VSCROLL);
    MoveWindow(dialog, workArea, WidthOf(WindowPlace(dialog)) + ::GetSystemMetrics(SM_CXVSCROLL), HeightOf(workArea));
    SCROLLINFO bar{};
    bar.cbSize = sizeof bar;
    bar.fMask = SIF_ALL;
    bar.nMax = m_contentHeight - 1;
    bar.nPage = static_cast<UINT>(m_view.bottom);
    ::SetScrollInfo(dialog, SB_VERT, &bar, TRUE);
    Clip();
    m_focusHook = ::SetWindowsHookExW(WH_CBT, FocusHook, nullptr, ::GetCurrentThreadId());
    if (const HWND focus = ::GetFocus(); ::IsChild(dialog, focus))
        BringIntoView(focus);
}

void SmallScreen::Restore()
{
    ScrollTo(0);
    const HWND dialog = m_dialog;
    MoveFooter(m_cutHeight);
    for (const HWND child : Content())
        ::SetWindowRgn(child, nullptr, FALSE);
    ::SetWindowLongPtrW(dialog, GWL_STYLE, ::GetWindowLongPtrW(dialog, GWL_STYLE) & ~LONG_PTR{WS_VSCROLL});
    const RECT place = WindowPlace(dialog);
    MoveWindow(dialog, WorkAreaOf(dialog), WidthOf(place) - ::GetSystemMetrics(SM_CXVSCROLL),
               HeightOf(place) + m_cutHeight);
    ::RedrawWindow(dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    Forget();
}

// As near to its place as the work area allows; what is larger shows its start.
void SmallScreen::MoveWindow(HWND dialog, const RECT& workArea, int width, int height)
{
    m_size = {width, height};
    const RECT place = WindowPlace(dialog);
    const LONG left = std::max(workArea.left, std::min<LONG>(place.left, workArea.right - width));
    const LONG top = std::max(workArea.top, std::min<LONG>(place.top, workArea.bottom - height));
    ::SetWindowPos(dialog, nullptr, left, top, width, height, SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

void SmallScreen::MoveFooter(int distance) const
{
    for (const HWND control : m_footer) {
        const RECT place = PlaceIn(m_dialog, control);
        MoveTo(control, place.left, place.top + distance);
    }
}

bool SmallScreen::IsFooter(HWND child) const noexcept
{
    return std::find(m_footer.begin(), m_footer.end(), child) != m_footer.end();
}

std::vector<HWND> SmallScreen::Content() const
{
    std::vector<HWND> content;
    for (HWND child = ::GetWindow(m_dialog, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (!IsFooter(child))
            content.push_back(child);
    }
    return content;
}

void SmallScreen::ScrollTo(int position)
{
    position = std::clamp(position, 0, m_contentHeight - static_cast<int>(m_view.bottom));
    const int distance = m_position - position;
    if (distance == 0)
        return;
    std::vector<std::pair<HWND, RECT>> before;
    for (const HWND child : Content())
        before.emplace_back(child, PlaceIn(m_dialog, child));
    m_position = position;
    ::ScrollWindowEx(m_dialog, 0, distance, &m_view, &m_view, nullptr, nullptr,
                     SW_SCROLLCHILDREN | SW_INVALIDATE | SW_ERASE);
    // Scrolling leaves out the controls that it does not see: those above and below the part that scrolls.
    for (const auto& [child, place] : before) {
        if (PlaceIn(m_dialog, child).top != place.top + distance)
            MoveTo(child, place.left, place.top + distance);
    }
    Clip();
    ::SetScrollPos(m_dialog, SB_VERT, m_position, TRUE);
}

void SmallScreen::Clip() const
{
    for (const HWND child : Content()) {
        const RECT place = PlaceIn(m_dialog, child);
        RECT box{};
        if (place.bottom > m_view.bottom) {
            const LONG height = std::max<LONG>(0, m_view.bottom - place.top);
            ::SetWindowRgn(child, ::CreateRectRgn(0, 0, WidthOf(place), height), TRUE);
        } else if (::GetWindowRgnBox(child, &box) != ERROR) {
            ::SetWindowRgn(child, nullptr, TRUE);
        }
    }
}

std::optional<LRESULT> SmallScreen::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!IsCut())
        return std::nullopt;
    switch (message) {
    case WM_SIZE:
        return 0;  // the dialog would lay itself out at its own height again
    case WM_GETMINMAXINFO: {
        // While it is cut it has one size, whatever it wants otherwise.
        auto& limits = *reinterpret_cast<MINMAXINFO*>(lParam);
        limits.ptMinTrackSize = limits.ptMaxTrackSize = m_size;
        return 0;
    }
    case WM_VSCROLL:
        if (lParam != 0)
            return std::nullopt;  // of a scroll bar that is a control
        OnScrollBar(LOWORD(wParam));
        return 0;
    case WM_MOUSEWHEEL:
        OnWheel(GET_WHEEL_DELTA_WPARAM(wParam));
        return 0;
    default:
        return std::nullopt;
    }
}

void SmallScreen::OnScrollBar(int request)
{
    SCROLLINFO bar{};
    bar.cbSize = sizeof bar;
    bar.fMask = SIF_TRACKPOS;
    switch (request) {
    case SB_LINEUP:
        return ScrollBy(-m_line);
    case SB_LINEDOWN:
        return ScrollBy(m_line);
    case SB_PAGEUP:
        return ScrollBy(-HeightOf(m_view));
    case SB_PAGEDOWN:
        return ScrollBy(HeightOf(m_view));
    case SB_TOP:
        return ScrollTo(0);
    case SB_BOTTOM:
        return ScrollTo(m_contentHeight);
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
        ::GetScrollInfo(m_dialog, SB_VERT, &bar);
        return ScrollTo(bar.nTrackPos);
    default:
        return;
    }
}

void SmallScreen::OnWheel(int turn)
{
    UINT lines = 3;
    ::SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    const int step = lines == WHEEL_PAGESCROLL ? HeightOf(m_view) : static_cast<int>(lines) * m_line;
    m_wheel += turn * step;
    // Fine wheels send parts of a notch, which are kept until they make a pixel.
    const int pixels = m_wheel / WHEEL_DELTA;
    m_wheel -= pixels * WHEEL_DELTA;
    ScrollBy(-pixels);
}

bool SmallScreen::UsesKey(const MSG& message)
{
    const bool isPage = message.wParam == VK_PRIOR || message.wParam == VK_NEXT;
    if (!IsCut() || !isPage || TakesPageKeys(message.hwnd))
        return false;
    ScrollBy(message.wParam == VK_PRIOR ? -HeightOf(m_view) : HeightOf(m_view));
    return true;
}

void SmallScreen::BringIntoView(HWND control)
{
    if (IsFooter(control))
        return;
    const RECT place = PlaceIn(m_dialog, control);
    const int spare = HeightOf(m_view) - HeightOf(place);
    const int margin = std::clamp(spare / 2, 0, PixelsOf(m_dialog, MarginUnits));
    const LONG above = place.top - margin;
    const LONG below = place.bottom + margin - m_view.bottom;
    const bool fits = spare >= 0;
    // What is higher than the view shows its start.
    if (above < 0 || (!fits && place.top >= m_view.bottom))
        ScrollBy(above);
    else if (below > 0 && fits)
        ScrollBy(below);
}

LRESULT CALLBACK SmallScreen::FocusHook(int code, WPARAM wParam, LPARAM lParam)
{
    const auto control = reinterpret_cast<HWND>(wParam);
    SmallScreen* const screen =
        code == HCBT_SETFOCUS
            ? Find([&](const SmallScreen& each) { return ::IsChild(each.m_dialog, control) != FALSE; })
            : nullptr;
    if (screen) {
        try {
            screen->BringIntoView(control);
        } catch (...) {
            // Out of memory the control stays where it is.
        }
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}
