#include "TextListBox.h"

#include "Clipboard.h"

BEGIN_MESSAGE_MAP(TextListBox, CListBox)
    ON_MESSAGE(WM_KEYDOWN, &TextListBox::OnKeyDown)
    ON_MESSAGE(WM_CONTEXTMENU, &TextListBox::OnContextMenu)
END_MESSAGE_MAP()

LRESULT TextListBox::OnKeyDown(WPARAM key, LPARAM)
{
    const ListCommand command = CommandOfListKey(key);
    if (command == ListCommand::None)
        return Default();
    Do(command);
    return 0;
}

LRESULT TextListBox::OnContextMenu(WPARAM, LPARAM place)
{
    if (place != -1)
        MarkRowAt(place);
    Do(AskListCommand(*this, place, {!MarkedLines().empty(), MarksMany()}));
    return 0;
}

std::wstring TextListBox::MarkedLines() const
{
    std::wstring lines;
    const int rows = static_cast<int>(SendMessage(LB_GETCOUNT));
    for (int row = 0; row < rows; ++row) {
        if (GetSel(row) <= 0)
            continue;
        std::wstring text(static_cast<std::size_t>(SendMessage(LB_GETTEXTLEN, static_cast<WPARAM>(row))), L'\0');
        SendMessage(LB_GETTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text.data()));
        lines.append(text).append(L"\r\n");
    }
    return lines;
}

// A list box, other than a list view, lets the right button mark nothing.
void TextListBox::MarkRowAt(LPARAM place)
{
    CPoint at(place);
    ScreenToClient(&at);
    const LRESULT found = SendMessage(LB_ITEMFROMPOINT, 0, MAKELPARAM(at.x, at.y));
    const bool isOutside = HIWORD(found) != 0;
    if (isOutside || GetSel(LOWORD(found)) > 0)
        return;
    if (MarksMany()) {
        SendMessage(LB_SETSEL, FALSE, -1);
        SendMessage(LB_SETSEL, TRUE, LOWORD(found));
    } else {
        SendMessage(LB_SETCURSEL, LOWORD(found));
    }
    TellParent();
}

// What a program marks is not told by the list box.
void TextListBox::TellParent() const
{
    GetParent()->SendMessage(WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), LBN_SELCHANGE), reinterpret_cast<LPARAM>(m_hWnd));
}

void TextListBox::Do(ListCommand command)
{
    if (command == ListCommand::Copy) {
        if (const std::wstring lines = MarkedLines(); !lines.empty())
            CopyText(*this, lines);
    } else if (command == ListCommand::MarkAll && MarksMany()) {
        SendMessage(LB_SETSEL, TRUE, -1);
        TellParent();
    }
}
