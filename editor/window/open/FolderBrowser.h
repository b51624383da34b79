// The system's own dialog for choosing a folder.
#pragma once

#include <afxwin.h>

#include <string>

// Begins in a folder, if there is such a one. Returns an empty text when the user has cancelled, or when the system has
// no such dialog.
[[nodiscard]] std::wstring BrowseForFolder(const CWnd& owner, const std::wstring& begin);
