// Draws portraits for a script that works dialogs from another thread.
#pragma once

#include <afxwin.h>

#include <string>

#include "Portrait.h"

// Draws in the thread of the dialogs, which is many times quicker than from another one.
class Artist : public CWnd {
public:
    Artist() { CreateEx(0, AfxRegisterWndClass(0), L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr); }
    ~Artist() override { DestroyWindow(); }

    // From any thread.
    [[nodiscard]] std::string Draw(HWND dialog)
    {
        SendMessage(DrawPortrait, reinterpret_cast<WPARAM>(dialog));
        return m_portrait;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != DrawPortrait)
            return CWnd::WindowProc(message, wParam, lParam);
        m_portrait = kztest::PortraitOf(reinterpret_cast<HWND>(wParam));
        return 0;
    }

private:
    static constexpr UINT DrawPortrait = WM_APP + 1;
    std::string m_portrait;
};
