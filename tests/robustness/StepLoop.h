// Steps of a test that run inside whatever modal loop is on top, and the dialog that they find there.
#pragma once

#include <afxwin.h>

#include <functional>
#include <utility>
#include <vector>

class StepLoop : public CWnd {
public:
    // The step runs once now, and once more for each Continue that it calls.
    explicit StepLoop(std::function<void()> step);
    ~StepLoop() override;

    // Asks for one more step, when all that has been posted until now is handled.
    void Continue() { PostMessage(RunStep); }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    static constexpr UINT RunStep = WM_APP + 1;
    std::function<void()> m_step;
};

// The dialog or message box of this thread that a user could work with, or null.
[[nodiscard]] HWND TopDialogOfThread();
// Ends a menu that a key or a message has opened, as Escape does.
void LeaveMenu();
[[nodiscard]] bool IsMessageBox(HWND dialog);
// The window's descendants in their order.
[[nodiscard]] std::vector<HWND> DescendantsOf(HWND window);
// What a user could reach: visible and enabled, its parents included.
[[nodiscard]] bool IsReachable(HWND control);
[[nodiscard]] bool IsOfClass(HWND window, const wchar_t* name);
