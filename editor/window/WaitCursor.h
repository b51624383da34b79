// The pointer says that the program works, as long as this object lives.
#pragma once

#include <afxwin.h>

class WaitCursor {
public:
    WaitCursor() noexcept : m_hBefore(::SetCursor(::LoadCursorW(nullptr, IDC_WAIT))) {}
    ~WaitCursor() { ::SetCursor(m_hBefore); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;

private:
    HCURSOR m_hBefore;
};
