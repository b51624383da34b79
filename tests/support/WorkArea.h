// A screen of another size, for one program or library: its questions after the monitor are answered with it. The
// sessions of the tests have one of 1024 x 768 at every resolution.
#pragma once

#include "ImportPatch.h"

namespace kztest {

class WorkArea {
public:
    // importer: who asks; null: the test program.
    WorkArea(HMODULE importer, LONG width, LONG height)
        : m_patch(importer ? importer : ::GetModuleHandleW(nullptr), "GetMonitorInfoW", reinterpret_cast<void*>(Answer))
    {
        Resize(width, height);
    }

    void Resize(LONG width, LONG height) const noexcept { s_area = {0, 0, width, height}; }

private:
    static BOOL WINAPI Answer(HMONITOR, MONITORINFO* monitor)
    {
        monitor->rcMonitor = monitor->rcWork = s_area;
        return TRUE;
    }

    inline static RECT s_area{};
    ImportPatch m_patch;
};

// Higher than every dialog.
inline constexpr LONG LargeScreenWidth = 4000;
inline constexpr LONG LargeScreenHeight = 3000;

}  // namespace kztest
