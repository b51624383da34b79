// A dialog that is higher than the screen's work area: it is cut to the work area, and what stands above the row of its
// OK and Cancel buttons scrolls, by scroll bar, wheel, PgUp and PgDn. A control that gets the focus scrolls into view.
// One that the user can size is first made as small as it allows, so that its lists show fewer rows before it scrolls.
//
// While the dialog is cut its controls stand in the places of the uncut dialog, moved up by what is scrolled; those
// that reach below the part that scrolls are clipped by a window region, for the buttons stand there.
#pragma once

#include <windows.h>

#include <optional>
#include <vector>

#include "Enlisted.h"

class SmallScreen : private Enlisted<SmallScreen> {
public:
    SmallScreen() noexcept = default;
    ~SmallScreen() { Forget(); }
    SmallScreen(const SmallScreen&) = delete;
    SmallScreen& operator=(const SmallScreen&) = delete;

    // Cuts the dialog, cuts it anew or gives it its height back, as the work area of its monitor demands.
    void Fit(HWND dialog);
    // Stops working for the dialog, which stays as it is.
    void Forget() noexcept;

    // Nothing when the message is to go on.
    [[nodiscard]] std::optional<LRESULT> Handle(UINT message, WPARAM wParam, LPARAM lParam);
    // Scrolls by a page when the message is PgUp or PgDn, unless the control with the focus has its own use for them.
    [[nodiscard]] bool UsesKey(const MSG& message);

private:
    friend Enlisted;
    static LRESULT CALLBACK FocusHook(int code, WPARAM wParam, LPARAM lParam);

    [[nodiscard]] bool IsCut() const noexcept { return m_dialog != nullptr; }
    void Shrink(HWND dialog, const RECT& workArea);
    [[nodiscard]] RECT FindFooter(HWND dialog);
    [[nodiscard]] LONG ContentBottom(HWND dialog, LONG lowest, LONG footerTop) const;
    void Cut(HWND dialog, const RECT& workArea, int windowHeight);
    void Restore();
    void MoveWindow(HWND dialog, const RECT& workArea, int width, int height);
    void MoveFooter(int distance) const;
    void ScrollTo(int position);
    void ScrollBy(int distance) { ScrollTo(m_position + distance); }
    void OnScrollBar(int request);
    void OnWheel(int turn);
    void BringIntoView(HWND control);
    void Clip() const;
    [[nodiscard]] std::vector<HWND> Content() const;
    [[nodiscard]] bool IsFooter(HWND child) const noexcept;

    HWND m_dialog = nullptr;  // null while nothing is cut
    HHOOK m_focusHook = nullptr;
    std::vector<HWND> m_footer;
    POINT m_size{};       // that the window was given last
    RECT m_view{};        // the part of the client area that scrolls
    int m_cutHeight = 0;  // by which the dialog is lower than it wants to be
    int m_contentHeight = 0;
    int m_position = 0;
    int m_line = 0;
    int m_wheel = 0;  // turned and not yet scrolled
};
