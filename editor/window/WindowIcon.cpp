#include "WindowIcon.h"

#include "resources/EditorIds.h"

void SetProgramIcon(CWnd& window)
{
    const auto load = [](int width, int height) {
        // Shared: Windows frees it with the program.
        return static_cast<HICON>(::LoadImageW(::GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDI_PROGRAM), IMAGE_ICON,
                                               ::GetSystemMetrics(width), ::GetSystemMetrics(height), LR_SHARED));
    };
    window.SetIcon(load(SM_CXICON, SM_CYICON), TRUE);
    window.SetIcon(load(SM_CXSMICON, SM_CYSMICON), FALSE);
}
