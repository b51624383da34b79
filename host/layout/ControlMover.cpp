#include "ControlMover.h"

namespace {

constexpr UINT MoveFlags = SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER;

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
    if (kind == ControlKind::DropList)
        wanted.bottom = wanted.top + DroppedHeight(window);
    m_moves.push_back({dialog.Dialog(), window, wanted});
}

void ControlMover::Apply() noexcept
{
    for (const Move& move : m_moves) {
        SetWindowPos(move.window, nullptr, move.place.left, move.place.top, move.place.right - move.place.left,
                     move.place.bottom - move.place.top, MoveFlags);
    }
}
