// Calling conventions and import/export macros of the MFC subset, under MFC's names.
#pragma once

#define AFX_CDECL __cdecl
#define AFXAPI __stdcall
#define afx_msg

// An extension library marks what it exports with these; its users, which do not define _AFXEXT, import it.
#define AFX_CLASS_EXPORT __declspec(dllexport)
#define AFX_CLASS_IMPORT __declspec(dllimport)
#ifdef _AFXEXT
#define AFX_EXT_CLASS AFX_CLASS_EXPORT
#else
#define AFX_EXT_CLASS AFX_CLASS_IMPORT
#endif

// The subset's own library; users of MFC never write this one.
#ifdef KZMFC_EXPORTS
#define KZMFC_API __declspec(dllexport)
#else
#define KZMFC_API __declspec(dllimport)
#endif
