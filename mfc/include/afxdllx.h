// Start-up of an extension library: included by exactly one of its sources, the one with DllMain.
//
// MFC prepares here what its lists of classes and its start-up code need. This subset has no such lists; the header is
// here so that sources written for MFC find it.
#pragma once

#include <afxwin.h>
