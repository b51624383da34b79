// The bar between two panes. It is moved by the mouse, and by the arrow keys while it has the focus.
#pragma once

#include <afxwin.h>

// To the parent: the bar of the control id wParam is to move by lParam pixels, to the right or down.
inline constexpr UINT WM_KZ_SPLITTER = WM_APP + 0x150;

class Splitter : public CWnd {
public:
    enum class Moves { Sideways, UpAndDown };
    explicit Splitter(Moves moves) noexcept : m_moves(moves) {}

    // Makes the bar behind a control of the window in the order of Tab. Its text is for screen readers.
    bool CreateBehind(CWnd& parent, int control, int id);

protected:
    afx_msg LRESULT OnPaint(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetCursor(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnMouse(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnButtonDown(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnButtonUp(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnKeysWanted(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnKey(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnFocus(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    [[nodiscard]] int Along(LPARAM point) const;
    void Move(int pixels);

    Moves m_moves;
    int m_nGrabbed = 0;  // where in the bar the mouse holds it
};
