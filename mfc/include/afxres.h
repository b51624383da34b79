// Symbols for resource scripts, as MFC's afxres.h gives them.
#pragma once

#ifdef RC_INVOKED
#include <windows.h>
#endif

#ifndef IDC_STATIC
#define IDC_STATIC (-1)
#endif

// Commands that every MFC program numbers alike
#define ID_FILE_NEW 0xE100
#define ID_FILE_OPEN 0xE101
#define ID_FILE_CLOSE 0xE102
#define ID_FILE_SAVE 0xE103
#define ID_APP_ABOUT 0xE140
#define ID_APP_EXIT 0xE141
