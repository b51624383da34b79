#include "ControlMover.h"

namespace {

// Drawn control by control, a visible dialog takes three times as long as when it is redrawn once at the end. A batch
// of DeferWindowPos is no faster than single moves.
constexpr UINT MoveFlags = SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER | SWP_NOREDRAW | SWP_DEFERERASE;

bool SameSize(const RECT& one, const RECT& other) noexcept
{
    return one.right - one.left == other.right - other.left && one.bottom - one.top == other.bottom - other.top;
}

void MoveTo(HWND window, const RECT& place, int height, UINT flags) noexcept
{
    SetWindowPos(window, nullptr, place.left, place.top, place.right - place.left, height, flags);
}

int DroppedHeight(HWND list) noexcept
{
    RECT dropped{};
    SendMessageW(list, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&dropped));
    return dropped.bottom - dropped.top;
}

// The closed part of a drop list has the height of its font; the height one sets is that of its list, with or without
// the closed part, depending on the system.
void ResizeDropList(HWND list, const RECT& place) noexcept
{
    const int before = DroppedHeight(list);
    MoveTo(list, place, before, MoveFlags);
    if (const int lost = before - DroppedHeight(list); lost != 0)
        MoveTo(list, place, before + lost, MoveFlags);
}

}  // namespace

void ControlMover::Add(const DialogMetrics& dialog, HWND window, ControlKind kind, const RECT& place)
{
    const RECT present = dialog.Place(window);
    RECT wanted = place;
    if (kind == ControlKind::DropList)
        wanted.bottom = wanted.top + (present.bottom - present.top);
    if (EqualRect(&present, &wanted))
        return;
    m_moves.push_back({dialog.Dialog(), window, wanted, SameSize(present, wanted), kind == ControlKind::DropList});
}

void ControlMover::Apply() noexcept
{
    for (const Move& move : m_moves) {
        if (move.sameSize)
            MoveTo(move.window, move.place, 0, MoveFlags | SWP_NOSIZE);
        else if (move.isDropList)
            ResizeDropList(move.window, move.place);
        else
            MoveTo(move.window, move.place, move.place.bottom - move.place.top, MoveFlags);
    }
    RedrawParents();
    m_moves.clear();
}

// Controls of one dialog mostly follow each other, so hardly a dialog is drawn twice.
void ControlMover::RedrawParents() const noexcept
{
    HWND last = nullptr;
    for (const Move& move : m_moves) {
        if (move.parent != last && IsWindowVisible(move.parent))
            RedrawWindow(move.parent, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
        last = move.parent;
    }
}
