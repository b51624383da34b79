// Where the panes of the main window stand: the find line above, the list and the pages beside each other, the findings
// below them while they are shown, the status bar at the bottom; the bars between the panes can be moved.
#pragma once

#include <afxwin.h>

class FrameLayout {
public:
    // In thousandths of the width; kept within what leaves both panes usable.
    [[nodiscard]] int ListShare() const noexcept { return m_nListShare; }
    void SetListShare(int share) noexcept;
    // Moves the bar by pixels; true when it has moved.
    bool MoveListBar(const CWnd& window, int pixels);

    // The same of the findings, in thousandths of the height.
    [[nodiscard]] int FindingsShare() const noexcept { return m_nFindingsShare; }
    void SetFindingsShare(int share) noexcept;
    bool MoveFindingsBar(const CWnd& window, int pixels);
    void ShowFindings(bool isShown) noexcept { m_bFindings = isShown; }
    [[nodiscard]] bool ShowsFindings() const noexcept { return m_bFindings; }

    // Places the controls of the window. The caption and the pages get the inside of the tab control.
    void Arrange(CWnd& window) const;
    // The size of the client area below which something would be cut.
    [[nodiscard]] static CSize Smallest(const CWnd& window);

    // The area of the pages, in client coordinates of the window.
    [[nodiscard]] static CRect PageArea(const CWnd& window);

private:
    int m_nListShare = 440;
    int m_nFindingsShare = 250;
    bool m_bFindings = false;
};
