#include "PictureMark.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <span>

namespace kztest {

namespace {

// FNV-1a, folded to four digits.
unsigned Checksum(std::span<const DWORD> pixels) noexcept
{
    std::uint32_t sum = 0x811C9DC5;
    for (const DWORD pixel : pixels)
        sum = (sum ^ (pixel & 0xFFFFFF)) * 0x01000193;
    return (sum >> 16 ^ sum) & 0xFFFF;
}

unsigned ChecksumOf(HIMAGELIST list, int index, int width, int height)
{
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    const HBITMAP bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    const HDC dc = ::CreateCompatibleDC(nullptr);
    const HGDIOBJ before = ::SelectObject(dc, bitmap);
    ::ImageList_Draw(list, index, dc, 0, 0, ILD_TRANSPARENT);
    ::GdiFlush();
    const auto count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    const unsigned checksum = Checksum({static_cast<const DWORD*>(bits), count});
    ::SelectObject(dc, before);
    ::DeleteDC(dc);
    ::DeleteObject(bitmap);
    return checksum;
}

}  // namespace

std::string PictureMark(HIMAGELIST list, int index)
{
    int width = 0;
    int height = 0;
    if (!list || !::ImageList_GetIconSize(list, &width, &height))
        return {};
    std::array<char, 48> text{};
    std::snprintf(text.data(), text.size(), "%dx%d-%04x", width, height, ChecksumOf(list, index, width, height));
    return text.data();
}

}  // namespace kztest
