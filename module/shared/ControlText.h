// The text of a control as the host's string.
#pragma once

#include <afxwin.h>

#include "KZBasicString.h"

[[nodiscard]] KZBasicString ControlText(const CWnd& control);
