#include "ControlMover.h"

namespace {

// Drawn control by control, a visible dialog takes three times as long as when it is redrawn once at the end. A batch
// of DeferWindowPos is no faster than single moves.
constexpr UINT MoveFlags = SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER | SWP_NOREDRAW | SWP_DEFERERASE;

bool SameSize(const RECT& one, const RECT& other) noexcept
{
    return one.right - one.left == other.right - other.left && one.bottom - one.top == other.bottom - other.top;
}

// A drop list's height is that of its list; the closed part has the height of its font whatever one sets.
LONG DroppedHeight(HWND list) noexcept
{
    RECT dropped{};
    SendMessageW(list, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&dropped));
    return dropped.bottom - dropped.top;
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
    const bool sameSize = SameSize(present, wanted);
    if (kind == ControlKind::DropList)
        wanted.bottom = wanted.top + DroppedHeight(window);
    m_moves.push_back({dialog.Dialog(), window, wanted, sameSize});
}

void ControlMover::Apply() noexcept
{
    HWND lastParent = nullptr;
    for (const Move& move : m_moves) {
        const RECT& place = move.place;
        SetWindowPos(move.window, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                     move.sameSize ? MoveFlags | SWP_NOSIZE : MoveFlags);
        if (move.parent != lastParent && IsWindowVisible(move.parent))
            RedrawWindow(move.parent, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
        lastParent = move.parent;
    }
    m_moves.clear();
}
