// What the module's dialogs do alike: their OK and Cancel buttons, the program's icon, the way to a wrong field.
#pragma once

#include <afxwin.h>

#include "CImageButton.h"
#include "KZBasicString.h"

// Gives the buttons the host's texts for OK and Cancel and the pictures OK-16.png and CANCEL-16.png of its image
// folder. Both must be bound to their windows. A missing picture leaves a button with its text alone.
void SetUpOkCancel(CImageButton& ok, CImageButton& cancel);

// The host program's icon at its large size, or null when the program has set none. Shared by the system: not to be
// destroyed.
[[nodiscard]] HICON LoadProgramIcon();

// Shows the text in a message box with an OK button; afterwards the field has the focus, its whole text is selected and
// the caret is in view.
void ShowMessageAndFocus(const KZBasicString& text, CEdit& field);
