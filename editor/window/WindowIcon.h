// The program's icon on a window, in the sizes that Windows wants for the caption and the task switcher.
#pragma once

#include <afxwin.h>

void SetProgramIcon(CWnd& window);

// The same, large, in a control that shows an icon.
void ShowProgramIcon(CWnd& dialog, int control);
