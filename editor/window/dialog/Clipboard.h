// Texts for other programs.
#pragma once

#include <afxwin.h>

#include <string>

// Puts the text on the clipboard in the name of the window. False when another program holds the clipboard or memory
// runs out; it then may be empty.
bool CopyText(const CWnd& window, const std::wstring& text);
