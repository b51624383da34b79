// Reads a picture file with the system's own imaging component.
#pragma once

#include "KZBasicString.h"
#include "PixelImage.h"

// Returns an empty image when the file is missing, damaged or larger than a picture may be.
[[nodiscard]] PixelImage ReadPicture(const KZBasicString& path);
