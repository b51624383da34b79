// Pictures in the forms that Windows draws from.
#pragma once

#include <afxwin.h>
#include <commctrl.h>

#include "PixelImage.h"

// An image list of one picture with its transparency; owns it.
class ButtonPicture {
public:
    explicit ButtonPicture(const PixelImage& image) noexcept;
    ~ButtonPicture();
    ButtonPicture(const ButtonPicture&) = delete;
    ButtonPicture& operator=(const ButtonPicture&) = delete;

    // Null when the system had no room for it.
    [[nodiscard]] HIMAGELIST Handle() const noexcept { return m_list; }

private:
    HIMAGELIST m_list = nullptr;
};

// A bitmap of 24 or 32 bits per pixel from the image, to be deleted by the caller; null when the system had no room.
[[nodiscard]] HBITMAP MakeBitmap(const PixelImage& image, WORD bitsPerPixel) noexcept;
