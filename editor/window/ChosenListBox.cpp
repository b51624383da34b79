#include "ChosenListBox.h"

#include <algorithm>

#include "text/EditorText.h"

namespace {

int WidestText(HWND list, const VariableList& variables) noexcept
{
    LONG widest = 0;
    const HDC dc = ::GetDC(list);
    const HGDIOBJ before = ::SelectObject(dc, reinterpret_cast<HFONT>(::SendMessageW(list, WM_GETFONT, 0, 0)));
    for (const KZBasicString& variable : variables) {
        SIZE size{};
        ::GetTextExtentPoint32W(dc, variable.c_str(), static_cast<int>(variable.Length()), &size);
        widest = std::max(widest, size.cx);
    }
    ::SelectObject(dc, before);
    ::ReleaseDC(list, dc);
    return widest;
}

}  // namespace

void ChosenListBox::Attach(HWND list, HWND label) noexcept
{
    m_list = list;
    m_label = label;
}

void ChosenListBox::Show(const VariableList& variables)
{
    ::SendMessageW(m_list, WM_SETREDRAW, FALSE, 0);
    ::SendMessageW(m_list, LB_RESETCONTENT, 0, 0);
    for (const KZBasicString& variable : variables)
        ::SendMessageW(m_list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(variable.c_str()));
    // A list box leaves this many pixels free on both sides of a text.
    const int margins = 2 * ::GetSystemMetrics(SM_CXEDGE);
    ::SendMessageW(m_list, LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(WidestText(m_list, variables) + margins), 0);
    ::SendMessageW(m_list, WM_SETREDRAW, TRUE, 0);
    ::InvalidateRect(m_list, nullptr, TRUE);
    ::SetWindowTextW(m_label, FormatEditorText(IDS_CHOSEN_LABEL, static_cast<int>(variables.size())).c_str());
}

bool ChosenListBox::HasMarked() const noexcept
{
    return ::SendMessageW(m_list, LB_GETSELCOUNT, 0, 0) > 0;
}

VariableList ChosenListBox::Unmarked(const VariableList& shown) const
{
    VariableList unmarked;
    WPARAM row = 0;
    for (const KZBasicString& variable : shown) {
        if (::SendMessageW(m_list, LB_GETSEL, row++, 0) <= 0)
            unmarked.push_back(variable);
    }
    return unmarked;
}
