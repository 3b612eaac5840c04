#pragma once

#include <algorithm>
#include <cstdint>

// Pixels of menu images: 0xAARRGGBB, the colours already multiplied by alpha.
namespace fw {

[[nodiscard]] constexpr int ChannelOf(std::uint32_t pixel, int shift) {
    return static_cast<int>((pixel >> shift) & 0xFFU);
}
[[nodiscard]] constexpr std::uint32_t PixelOf(int alpha, int red, int green, int blue) {
    return static_cast<std::uint32_t>(alpha) << 24 | static_cast<std::uint32_t>(red) << 16 |
           static_cast<std::uint32_t>(green) << 8 | static_cast<std::uint32_t>(blue);
}

// What a pixel is, told from what it makes of a black and of a white ground: as much of the white as shines through, so
// transparent is the pixel. It does not matter whether its painter went by an alpha channel or by a mask. A pixel that
// inverts its ground cannot be had and becomes opaque.
[[nodiscard]] constexpr std::uint32_t PremultipliedPixel(std::uint32_t overBlack, std::uint32_t overWhite) {
    int shinesThrough = 0;
    for (const int shift : {16, 8, 0})
        shinesThrough += std::max(ChannelOf(overWhite, shift) - ChannelOf(overBlack, shift), 0);
    const int alpha = 255 - (shinesThrough + 1) / 3; // the three differ by rounding only
    return PixelOf(alpha, std::min(ChannelOf(overBlack, 16), alpha), std::min(ChannelOf(overBlack, 8), alpha),
                   std::min(ChannelOf(overBlack, 0), alpha));
}

// The same pixel of a greyed item: without colour (weights of ITU-R BT.601) and half as dense.
[[nodiscard]] constexpr std::uint32_t DimmedPixel(std::uint32_t pixel) {
    const int grey = (ChannelOf(pixel, 16) * 299 + ChannelOf(pixel, 8) * 587 + ChannelOf(pixel, 0) * 114) / 1000 / 2;
    return PixelOf(ChannelOf(pixel, 24) / 2, grey, grey, grey);
}

// The same pixel in another colour (0x00BBGGRR, as Windows has it) and as dense as before.
[[nodiscard]] constexpr std::uint32_t PixelInColour(std::uint32_t pixel, std::uint32_t colour) {
    const int alpha = ChannelOf(pixel, 24);
    const auto part = [&](int shift) { return ChannelOf(colour, shift) * alpha / 255; };
    return PixelOf(alpha, part(0), part(8), part(16));
}

} // namespace fw
