// Tool tips on buttons that show a picture alone.
#pragma once

#include <windows.h>

#include "AccessibleNames.h"

// Makes a tool tip window of the dialog's with the name of every button that has a name and no text of its own. Windows
// destroys it together with the dialog.
void MakePictureTips(HWND dialog, const AccessibleNames& names);
