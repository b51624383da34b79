// The pictures on the tabs of the module's tabbed dialogs.
#pragma once

#include <afxcmn.h>

#include <vector>

// Fills the list with pictures of the host's image folder, in order, as large as the first of them.
// A picture that is missing gets an empty place, so that the others keep their numbers; when all are missing the list
// stays without a handle. Returns how many it has got.
int CreateTabImages(CImageList& list, const std::vector<const wchar_t*>& fileNames);
