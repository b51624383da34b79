#include "CutTextTips.h"

#include <commctrl.h>

#include <array>
#include <cwchar>
#include <utility>

#include "WindowProcedure.h"

namespace {

constexpr int TextMargin = 6;         // in pixels, on each side of a list view's text
constexpr std::size_t Longest = 512;  // characters that a tip shows

}  // namespace

void CutTextTips::Attach(HWND list)
{
    if (m_list)
        return;
    m_list = list;
    m_cell = {};
    Enlist();
    m_previous = SetProcedure(list, Procedure);
}

void CutTextTips::Detach() noexcept
{
    Leave();
    if (m_list && ProcedureOf(m_list) == Procedure)
        SetProcedure(m_list, m_previous);
    m_list = nullptr;
    if (::IsWindow(m_tips))
        ::DestroyWindow(m_tips);
    m_tips = nullptr;
}

LRESULT CALLBACK CutTextTips::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    CutTextTips* const tips = Find([&](const CutTextTips& each) { return each.m_list == window; });
    if (!tips)
        return ::DefWindowProcW(window, message, wParam, lParam);
    const WNDPROC previous = tips->m_previous;
    if (message == WM_MOUSEMOVE) {
        try {
            tips->OnMouseMove({static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))});
        } catch (...) {
            // Out of memory there is no tip.
        }
    }
    if (message == WM_NCDESTROY)
        tips->Detach();
    return ::CallWindowProcW(previous, window, message, wParam, lParam);
}

void CutTextTips::OnMouseMove(POINT point)
{
    const Cell cell = CellAt(point);
    if (m_tips && cell == m_cell)
        return;
    if (!m_tips) {
        m_tips = ::CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0,
                                   0, 0, 0, m_list, nullptr, nullptr, nullptr);
        Tell(TTM_ADDTOOLW, {}, {});
    }
    m_cell = cell;
    ::SendMessageW(m_tips, TTM_POP, 0, 0);
    const RECT place = cell.row < 0 ? RECT{} : PlaceOf(cell);
    std::wstring text = cell.row < 0 ? std::wstring() : TextOf(cell);
    if (cell.column != m_wholeColumn && !IsCut(text, place))
        text.clear();
    Tell(TTM_UPDATETIPTEXTW, place, std::move(text));
    Tell(TTM_NEWTOOLRECTW, place, {});
}

bool CutTextTips::IsListView() const noexcept
{
    std::array<wchar_t, 16> name{};
    ::GetClassNameW(m_list, name.data(), static_cast<int>(name.size()));
    return std::wcscmp(name.data(), WC_LISTVIEWW) == 0;
}

CutTextTips::Cell CutTextTips::CellAt(POINT point) const noexcept
{
    if (IsListView()) {
        LVHITTESTINFO hit{};
        hit.pt = point;
        ::SendMessageW(m_list, LVM_SUBITEMHITTEST, 0, reinterpret_cast<LPARAM>(&hit));
        return {hit.iItem, hit.iSubItem};
    }
    const LRESULT row = ::SendMessageW(m_list, LB_ITEMFROMPOINT, 0, MAKELPARAM(point.x, point.y));
    return {HIWORD(row) != 0 ? -1 : static_cast<int>(LOWORD(row)), 0};
}

RECT CutTextTips::PlaceOf(Cell cell) const noexcept
{
    RECT place{};
    if (IsListView()) {
        // Of column 0 this would be the whole row.
        place = {cell.column == 0 ? LVIR_LABEL : LVIR_BOUNDS, cell.column, 0, 0};
        const UINT message = cell.column == 0 ? LVM_GETITEMRECT : LVM_GETSUBITEMRECT;
        ::SendMessageW(m_list, message, static_cast<WPARAM>(cell.row), reinterpret_cast<LPARAM>(&place));
        return place;
    }
    ::SendMessageW(m_list, LB_GETITEMRECT, static_cast<WPARAM>(cell.row), reinterpret_cast<LPARAM>(&place));
    return place;
}

std::wstring CutTextTips::TextOf(Cell cell) const
{
    const auto row = static_cast<WPARAM>(cell.row);
    if (IsListView()) {
        std::wstring text(Longest, L'\0');
        LVITEMW item{};
        item.iSubItem = cell.column;
        item.pszText = text.data();
        item.cchTextMax = static_cast<int>(Longest);
        text.resize(
            static_cast<std::size_t>(::SendMessageW(m_list, LVM_GETITEMTEXTW, row, reinterpret_cast<LPARAM>(&item))));
        return text;
    }
    const LRESULT length = ::SendMessageW(m_list, LB_GETTEXTLEN, row, 0);
    std::wstring text(length > 0 ? static_cast<std::size_t>(length) : 0, L'\0');
    ::SendMessageW(m_list, LB_GETTEXT, row, reinterpret_cast<LPARAM>(text.data()));
    return text;
}

bool CutTextTips::IsCut(const std::wstring& text, const RECT& place) const noexcept
{
    const HDC dc = ::GetDC(m_list);
    const HGDIOBJ before = ::SelectObject(dc, reinterpret_cast<HFONT>(::SendMessageW(m_list, WM_GETFONT, 0, 0)));
    SIZE size{};
    ::GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size);
    ::SelectObject(dc, before);
    ::ReleaseDC(m_list, dc);
    RECT client{};
    ::GetClientRect(m_list, &client);
    RECT shown{};
    ::IntersectRect(&shown, &client, &place);
    return size.cx + (IsListView() ? 2 * TextMargin : 0) > shown.right - shown.left;
}

void CutTextTips::Tell(UINT message, const RECT& place, std::wstring text) const noexcept
{
    TTTOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    tool.uFlags = TTF_SUBCLASS;
    tool.hwnd = m_list;
    tool.rect = place;
    tool.lpszText = text.data();
    ::SendMessageW(m_tips, message, 0, reinterpret_cast<LPARAM>(&tool));
}
