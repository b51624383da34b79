// Dialog templates as resources.
#pragma once

#include <afxwin.h>

struct DialogTemplate {
    LPCDLGTEMPLATEW bytes;  // null: not found
    HINSTANCE module;
};

// Looks a template up along the resource chain.
DialogTemplate FindDialogTemplate(LPCWSTR name) noexcept;

// Whether a template leaves its place open: at (0, 0) and with none of the styles that place a dialog.
bool AsksForCentring(LPCDLGTEMPLATEW dialogTemplate) noexcept;
