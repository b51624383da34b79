// Windows, dialogs, controls, GDI objects and the application, as MFC's afxwin.h declares them. Each part's header says
// where it differs from MFC.
#pragma once

#include <afx.h>

#include "atltypes.h"

#include "afxcmdt_.h"
#include "afxgdi_.h"
#include "afxmenu_.h"
#include "afxwnd_.h"

#include "afxmsg_.h"

#include "afxapp_.h"
#include "afxctl_.h"
#include "afxdd_.h"
#include "afxdlg_.h"
#include "afxdll_.h"
