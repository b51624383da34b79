// What every dialog of the platform does alike: its OK and Cancel buttons, its icon, its way to point at a wrong field.
#pragma once

#include <afxwin.h>

#include "CImageButton.h"
#include "KZBasicString.h"
#include "KZLayout.h"

// Gives the buttons the host's texts for OK and Cancel and the pictures OK-16.png and CANCEL-16.png of the image
// folder. Both must be bound to their windows. A missing picture leaves a button with its text alone.
KZ_API void KZSetUpOkCancel(CImageButton& ok, CImageButton& cancel);

// The program's icon at its large size, or null when the program has set none. Shared by the system: not to be
// destroyed.
[[nodiscard]] KZ_API HICON KZLoadProgramIcon();

// Sets the icon that stands for the dialog in the task switcher (WM_SETICON, ICON_BIG); null takes it away.
KZ_API void KZSetBigIcon(CWnd& dialog, HICON icon) noexcept;

// The same with the program's icon.
KZ_API void KZSetBigIcon(CWnd& dialog);

// Makes the dialog's window as much higher or lower as its client area differs from what the layout needs (FixedSize);
// left, top and width stay. The layout is not applied.
KZ_API void KZFitDialogHeight(CWnd& dialog, const KZLayout& layout);

// Shows the text in a message box with an OK button; afterwards the field has the focus, its whole text is selected and
// the caret is in view.
KZ_API void KZShowMessageAndFocus(const KZBasicString& text, CEdit& field);
