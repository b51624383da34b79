#include "WindowIcon.h"

#include "resources/EditorIds.h"

void SetProgramIcon(HWND window) noexcept
{
    const auto load = [](int width, int height) {
        // Shared: Windows frees it with the program.
        return reinterpret_cast<LPARAM>(::LoadImageW(::GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDI_PROGRAM),
                                                     IMAGE_ICON, ::GetSystemMetrics(width), ::GetSystemMetrics(height),
                                                     LR_SHARED));
    };
    ::SendMessageW(window, WM_SETICON, ICON_BIG, load(SM_CXICON, SM_CYICON));
    ::SendMessageW(window, WM_SETICON, ICON_SMALL, load(SM_CXSMICON, SM_CYSMICON));
}
