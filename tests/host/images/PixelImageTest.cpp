#include "images/PixelImage.h"

#include <gtest/gtest.h>

namespace {

constexpr Pixel Red = 0xFFFF0000;
constexpr Pixel Blue = 0xFF0000FF;

TEST(PixelImage, IsScaledToTheWantedSize)
{
    const PixelImage scaled = Scaled({2, 1, {Red, Blue}}, 4, 2);
    EXPECT_EQ(scaled.width, 4);
    EXPECT_EQ(scaled.height, 2);
    ASSERT_EQ(scaled.pixels.size(), 8u);
    EXPECT_EQ(scaled.pixels[0], Red);
    EXPECT_EQ(scaled.pixels[3], Blue);
    EXPECT_EQ(scaled.pixels[1], 0xFFBF0040u) << "a quarter of the way from red to blue";
}

TEST(PixelImage, StaysTheSameInItsOwnSize)
{
    const PixelImage image{2, 2, {Red, Blue, 0x80123456, 0}};
    EXPECT_EQ(Scaled(image, 2, 2).pixels, image.pixels);
}

TEST(PixelImage, ScalesColoursByTheirOpacity)
{
    // Half-way between opaque red and a transparent pixel that happens to be black: red, half transparent.
    const PixelImage scaled = Scaled({2, 1, {Red, 0}}, 1, 1);
    EXPECT_EQ(scaled.pixels[0], 0x80FF0000u);
}

TEST(PixelImage, LosesOneColourToTransparency)
{
    PixelImage image{2, 1, {Red, Blue}};
    MakeTransparent(image, 0x00FF0000);
    EXPECT_EQ(image.pixels, (std::vector<Pixel>{0, Blue}));
}

TEST(PixelImage, FindsAKeyColourThatNoPixelHas)
{
    EXPECT_EQ(UnusedColour({1, 1, {Red}}), 0x00FF00FFu);
    EXPECT_EQ(UnusedColour({2, 1, {0xFFFF00FF, 0xFFFF00FE}}), 0x00FF00FDu);
}

TEST(PixelImage, IsFlattenedOverABackground)
{
    PixelImage image{3, 1, {Red, 0x80000000, 0x10FFFFFF}};
    Flatten(image, 0x00C8C8C8, 0x00FF00FF);
    EXPECT_EQ(image.pixels[0], Red);
    EXPECT_EQ(image.pixels[1], 0xFF636363u);
    EXPECT_EQ(image.pixels[2], 0xFFFF00FFu) << "hardly visible pixels become the key colour";
}

}  // namespace
