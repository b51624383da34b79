#include "AnchoredControls.h"

namespace {

SIZE SizeOf(const RECT& rectangle) noexcept
{
    return {rectangle.right - rectangle.left, rectangle.bottom - rectangle.top};
}

SIZE ClientSize(HWND window) noexcept
{
    RECT client{};
    ::GetClientRect(window, &client);
    return SizeOf(client);
}

}  // namespace

void AnchoredControls::Capture(HWND dialog, std::span<const Anchor> anchors)
{
    m_dialog = dialog;
    m_clientSize = ClientSize(dialog);
    RECT window{};
    ::GetWindowRect(dialog, &window);
    m_windowSize = SizeOf(window);
    for (const Anchor& anchor : anchors) {
        const HWND control = ::GetDlgItem(dialog, anchor.control);
        RECT drawn{};
        if (!control || !::GetWindowRect(control, &drawn))
            continue;
        ::MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&drawn), 2);
        m_controls.push_back({&anchor, drawn});
    }
}

void AnchoredControls::Apply() const noexcept
{
    const SIZE client = ClientSize(m_dialog);
    const LONG x = client.cx - m_clientSize.cx;
    const LONG y = client.cy - m_clientSize.cy;
    HDWP moves = ::BeginDeferWindowPos(static_cast<int>(m_controls.size()));
    for (const auto& [anchor, drawn] : m_controls) {
        const SIZE size = SizeOf(drawn);
        if (moves)
            moves = ::DeferWindowPos(moves, ::GetDlgItem(m_dialog, anchor->control), nullptr,
                                     drawn.left + x * anchor->moveX / 100, drawn.top + y * anchor->moveY / 100,
                                     size.cx + x * anchor->growX / 100, size.cy + y * anchor->growY / 100,
                                     SWP_NOZORDER | SWP_NOACTIVATE);
    }
    if (moves)
        ::EndDeferWindowPos(moves);
}
