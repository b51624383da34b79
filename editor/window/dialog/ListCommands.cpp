#include "ListCommands.h"

#include "resources/DialogTextIds.h"
#include "text/EditorText.h"

namespace {

bool IsDown(int key)
{
    return ::GetKeyState(key) < 0;
}

void Append(const CMenu& menu, ListCommand command, unsigned text, bool isEnabled)
{
    ::AppendMenuW(menu, isEnabled ? MF_STRING : MF_GRAYED, static_cast<UINT_PTR>(command), EditorText(text).c_str());
}

}  // namespace

ListCommand CommandOfListKey(WPARAM key)
{
    if (!IsDown(VK_CONTROL) || IsDown(VK_SHIFT) || IsDown(VK_MENU))
        return ListCommand::None;
    return key == 'C' ? ListCommand::Copy : key == 'A' ? ListCommand::MarkAll : ListCommand::None;
}

ListCommand AskListCommand(const CWnd& list, LPARAM place, const ListOffer& offer)
{
    CPoint at(static_cast<short>(LOWORD(place)), static_cast<short>(HIWORD(place)));
    if (place == -1) {  // by the keyboard
        at = CPoint(0, 0);
        list.ClientToScreen(&at);
    }
    CMenu menu;
    menu.Attach(::CreatePopupMenu());
    Append(menu, ListCommand::Copy, IDS_LIST_COPY, offer.hasMarked);
    if (offer.marksMany)
        Append(menu, ListCommand::MarkAll, IDS_LIST_MARK_ALL, true);
    return static_cast<ListCommand>(::TrackPopupMenu(menu, TPM_RETURNCMD, at.x, at.y, 0, list.m_hWnd, nullptr));
}
