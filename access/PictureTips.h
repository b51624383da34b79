// Tool tips on buttons that show a picture, or a single sign, alone.
#pragma once

#include <windows.h>

#include "AccessibleNames.h"

// Makes a tool tip window of the dialog's with the name of every button that has a name and no text of its own, or one
// sign. Returns it, or null when there is no such button. Windows destroys it together with the dialog.
HWND MakePictureTips(HWND dialog, const AccessibleNames& names);
