// Symbols for resource scripts, as MFC's afxres.h gives them.
#pragma once

#ifdef RC_INVOKED
#include <windows.h>
#endif

#ifndef IDC_STATIC
#define IDC_STATIC (-1)
#endif
