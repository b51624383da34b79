#include "WindowIcon.h"

#include "resources/EditorIds.h"

namespace {

HICON LoadProgramIcon(int widthMetric, int heightMetric)
{
    // Shared: Windows frees it with the program.
    return static_cast<HICON>(::LoadImageW(::GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDI_PROGRAM), IMAGE_ICON,
                                           ::GetSystemMetrics(widthMetric), ::GetSystemMetrics(heightMetric),
                                           LR_SHARED));
}

}  // namespace

void SetProgramIcon(CWnd& window)
{
    window.SetIcon(LoadProgramIcon(SM_CXICON, SM_CYICON), TRUE);
    window.SetIcon(LoadProgramIcon(SM_CXSMICON, SM_CYSMICON), FALSE);
}

void ShowProgramIcon(CWnd& dialog, int control)
{
    dialog.GetDlgItem(control)->SendMessage(STM_SETICON,
                                            reinterpret_cast<WPARAM>(LoadProgramIcon(SM_CXICON, SM_CYICON)));
}
