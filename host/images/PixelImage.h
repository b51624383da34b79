// A picture as pixels in memory, and what is done to pixels. Plain arithmetic, without windows.
#pragma once

#include <cstdint>
#include <vector>

// 0xAARRGGBB, the colour not multiplied by alpha; rows from top to bottom.
using Pixel = std::uint32_t;

struct PixelImage {
    int width = 0;
    int height = 0;
    std::vector<Pixel> pixels{};

    [[nodiscard]] bool IsEmpty() const noexcept { return pixels.empty(); }
};

// The largest side of a picture that is taken for one; a header that promises more is a damaged or hostile file.
inline constexpr int LargestPictureSide = 4096;

[[nodiscard]] constexpr std::uint8_t AlphaOf(Pixel pixel) noexcept
{
    return static_cast<std::uint8_t>(pixel >> 24);
}

// The image in another size, colours blended by their opacity so that no dark fringe appears.
[[nodiscard]] PixelImage Scaled(const PixelImage& image, int width, int height);

// Makes the pixels of one colour (0x00RRGGBB) wholly transparent.
void MakeTransparent(PixelImage& image, Pixel colour) noexcept;

// A colour (0x00RRGGBB) that no visible pixel has, for bitmaps that mark transparency by a colour.
[[nodiscard]] Pixel UnusedColour(const PixelImage& image);

// Opaque pixels: what is nearly transparent becomes the key colour, what is half so is blended over the background.
void Flatten(PixelImage& image, Pixel background, Pixel key) noexcept;
