// MFC's header of extended user interface classes. This subset has none of them; it is here so that sources written for
// MFC find it.
#pragma once

#include <afxwin.h>
