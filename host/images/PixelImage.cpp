#include "PixelImage.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace {

constexpr Pixel ColourMask = 0x00FFFFFF;
constexpr Pixel Opaque = 0xFF000000;

// Below this a pixel of a masked bitmap counts as not there.
constexpr std::uint8_t LeastVisibleAlpha = 32;

constexpr std::uint32_t Channel(Pixel pixel, int shift) noexcept
{
    return (pixel >> shift) & 0xFFU;
}

// Colour times alpha, and alpha, as sums that can be weighted.
struct Sample {
    std::array<double, 4> value{};

    void Add(Pixel pixel, double weight) noexcept
    {
        const double alpha = AlphaOf(pixel) * weight;
        for (int i = 0; i < 3; ++i)
            value[static_cast<std::size_t>(i)] += Channel(pixel, 8 * i) * alpha;
        value[3] += alpha;
    }

    [[nodiscard]] Pixel Result() const noexcept
    {
        if (value[3] <= 0.0)
            return 0;
        Pixel pixel = static_cast<Pixel>(std::lround(value[3])) << 24;
        for (int i = 0; i < 3; ++i)
            pixel |= static_cast<Pixel>(std::lround(value[static_cast<std::size_t>(i)] / value[3])) << (8 * i);
        return pixel;
    }
};

// The two source lines that a target line lies between, and how much of the second it takes.
struct Between {
    int first;
    int second;
    double part;
};

Between Neighbours(int target, int targetSize, int sourceSize) noexcept
{
    const double centre = (target + 0.5) * sourceSize / targetSize - 0.5;
    const double within = std::clamp(centre, 0.0, static_cast<double>(sourceSize - 1));
    const int first = static_cast<int>(within);
    return {first, std::min(first + 1, sourceSize - 1), within - first};
}

}  // namespace

PixelImage Scaled(const PixelImage& image, int width, int height)
{
    PixelImage result{width, height};
    result.pixels.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    const auto at = [&image](int x, int y) {
        return image
            .pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(image.width) + static_cast<std::size_t>(x)];
    };
    for (int y = 0; y < height; ++y) {
        const Between rows = Neighbours(y, height, image.height);
        for (int x = 0; x < width; ++x) {
            const Between columns = Neighbours(x, width, image.width);
            Sample sample;
            sample.Add(at(columns.first, rows.first), (1 - columns.part) * (1 - rows.part));
            sample.Add(at(columns.second, rows.first), columns.part * (1 - rows.part));
            sample.Add(at(columns.first, rows.second), (1 - columns.part) * rows.part);
            sample.Add(at(columns.second, rows.second), columns.part * rows.part);
            result.pixels.push_back(sample.Result());
        }
    }
    return result;
}

void MakeTransparent(PixelImage& image, Pixel colour) noexcept
{
    for (Pixel& pixel : image.pixels) {
        if ((pixel & ColourMask) == colour)
            pixel = 0;
    }
}

Pixel UnusedColour(const PixelImage& image)
{
    // Among one colour more than there are pixels one is free.
    constexpr Pixel Magenta = 0x00FF00FF;
    std::vector<Pixel> used;
    used.reserve(image.pixels.size());
    for (const Pixel pixel : image.pixels)
        used.push_back(pixel & ColourMask);
    std::sort(used.begin(), used.end());
    Pixel candidate = Magenta;
    while (std::binary_search(used.begin(), used.end(), candidate))
        candidate = (candidate - 1) & ColourMask;
    return candidate;
}

void Flatten(PixelImage& image, Pixel background, Pixel key) noexcept
{
    for (Pixel& pixel : image.pixels) {
        const std::uint32_t alpha = AlphaOf(pixel);
        if (alpha < LeastVisibleAlpha) {
            pixel = Opaque | key;
            continue;
        }
        Pixel flat = Opaque;
        for (int shift = 0; shift < 24; shift += 8)
            flat |= ((Channel(pixel, shift) * alpha + Channel(background, shift) * (255 - alpha)) / 255) << shift;
        pixel = flat;
    }
}
