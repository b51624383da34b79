// The pictures that image buttons show, so that a dialog with forty equal pictures holds one and each file is read
// once.
#pragma once

#include <memory>

#include "GdiPicture.h"
#include "KZBasicString.h"

struct PictureKey {
    KZBasicString path;
    COLORREF transparent;  // the colour that counts as such; CLR_INVALID (0xFFFFFFFF): the file's own transparency
    int dpi;               // in dots per inch; 96: the file's own size
    // clang-tidy takes the 0 inside for a pointer: NOLINTNEXTLINE(modernize-use-nullptr)
    auto operator<=>(const PictureKey&) const = default;
};

// The picture of the file as it is now; null when the file is missing or no picture, or the system has no room. Used on
// the user-interface thread alone.
[[nodiscard]] std::shared_ptr<const ButtonPicture> SharedPicture(const PictureKey& key);
