// The text of a control as the host's string.
#pragma once

#include <afxwin.h>

#include "KZBasicString.h"

[[nodiscard]] KZBasicString ControlText(HWND control);
[[nodiscard]] inline KZBasicString ControlText(HWND dialog, int id)
{
    return ControlText(::GetDlgItem(dialog, id));
}
