#include "AnchoredControls.h"

namespace {

CSize ClientSize(const CWnd& window)
{
    CRect client;
    window.GetClientRect(&client);
    return client.Size();
}

}  // namespace

void AnchoredControls::Capture(const CWnd& dialog, std::span<const Anchor> anchors)
{
    m_pDialog = &dialog;
    m_sizeClient = ClientSize(dialog);
    CRect window;
    dialog.GetWindowRect(&window);
    m_sizeWindow = window.Size();
    for (const Anchor& anchor : anchors) {
        const CWnd* control = dialog.GetDlgItem(anchor.control);
        if (!control)
            continue;
        CRect drawn;
        control->GetWindowRect(&drawn);
        dialog.ScreenToClient(&drawn);
        m_controls.push_back({&anchor, drawn});
    }
}

void AnchoredControls::Apply() const
{
    if (!m_pDialog)
        return;
    const CSize client = ClientSize(*m_pDialog);
    const int x = client.cx - m_sizeClient.cx;
    const int y = client.cy - m_sizeClient.cy;
    HDWP moves = ::BeginDeferWindowPos(static_cast<int>(m_controls.size()));
    for (const auto& [anchor, drawn] : m_controls) {
        HWND control = nullptr;
        m_pDialog->GetDlgItem(anchor->control, &control);
        if (moves)
            moves = ::DeferWindowPos(moves, control, nullptr, drawn.left + x * anchor->moveX / 100,
                                     drawn.top + y * anchor->moveY / 100, drawn.Width() + x * anchor->growX / 100,
                                     drawn.Height() + y * anchor->growY / 100, SWP_NOZORDER | SWP_NOACTIVATE);
    }
    if (moves)
        ::EndDeferWindowPos(moves);
}
