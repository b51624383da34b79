// The window that owns the dialogs of the benchmarks. As soon as a modal dialog has nothing more to do, which it tells
// its owner, it is painted whole and told to cancel: what is timed is opening and closing, and no waiting.
#pragma once

#include <afxwin.h>

#include <functional>

class OwnerWindow : public CWnd {
public:
    OwnerWindow();
    ~OwnerWindow() override;

    // What to do while a dialog is open and at rest; nothing until set.
    void WhileOpen(std::function<void()> look) { m_whileOpen = std::move(look); }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    std::function<void()> m_whileOpen;
};
