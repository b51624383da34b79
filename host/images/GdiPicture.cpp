#include "GdiPicture.h"

#include <cstddef>
#include <cstring>

namespace {

constexpr std::size_t RowBytes(int width, WORD bitsPerPixel) noexcept
{
    return (static_cast<std::size_t>(width) * bitsPerPixel + 31) / 32 * 4;  // rows of a DIB end on 32 bits
}

void CopyRow(std::byte* target, const Pixel* source, int width, std::size_t pixelBytes) noexcept
{
    for (int x = 0; x < width; ++x, target += pixelBytes)
        std::memcpy(target, source + x, pixelBytes);  // blue, green, red and, in 32 bits, alpha
}

}  // namespace

HBITMAP MakeBitmap(const PixelImage& image, WORD bitsPerPixel) noexcept
{
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = image.width;
    info.bmiHeader.biHeight = -image.height;  // top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = bitsPerPixel;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    const HBITMAP bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (!bitmap)
        return nullptr;
    const std::size_t rowBytes = RowBytes(image.width, bitsPerPixel);
    auto* row = static_cast<std::byte*>(bits);
    const Pixel* source = image.pixels.data();
    for (int y = 0; y < image.height; ++y, row += rowBytes, source += image.width)
        CopyRow(row, source, image.width, bitsPerPixel / 8U);
    return bitmap;
}

ButtonPicture::ButtonPicture(const PixelImage& image) noexcept
{
    const HBITMAP bitmap = MakeBitmap(image, 32);
    if (!bitmap)
        return;
    m_list = ::ImageList_Create(image.width, image.height, ILC_COLOR32, 1, 0);
    if (m_list && ::ImageList_Add(m_list, bitmap, nullptr) < 0) {
        ::ImageList_Destroy(m_list);
        m_list = nullptr;
    }
    ::DeleteObject(bitmap);
}

ButtonPicture::~ButtonPicture()
{
    if (m_list)
        ::ImageList_Destroy(m_list);
}
