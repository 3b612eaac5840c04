#include "controls/glyph_icon.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace korvane::controls {

fw::UniqueIcon GlyphIcon(std::span<const base::Rect> rectangles, base::Size size, COLORREF colour) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size.width;
    info.bmiHeader.biHeight = -size.height; // top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    const fw::UniqueBitmap picture{::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0)};
    // The mask serves where the picture's alpha does not count; a row of it is a multiple of 16 pixels.
    const std::size_t maskRow = (static_cast<std::size_t>(size.width) + 15) / 16 * 2;
    std::vector<std::uint8_t> mask(maskRow * static_cast<std::size_t>(size.height), 0xFF);
    if (!picture) return {};

    const std::uint32_t opaque = 0xFF000000U | static_cast<std::uint32_t>(GetRValue(colour)) << 16 |
                                 static_cast<std::uint32_t>(GetGValue(colour)) << 8 | GetBValue(colour);
    const std::span pixels{static_cast<std::uint32_t*>(bits), static_cast<std::size_t>(size.width * size.height)};
    for (const base::Rect& one : rectangles)
        for (int y = std::max(one.top, 0); y < std::min(one.bottom, size.height); ++y)
            for (int x = std::max(one.left, 0); x < std::min(one.right, size.width); ++x) {
                pixels[static_cast<std::size_t>(y * size.width + x)] = opaque;
                mask[static_cast<std::size_t>(y) * maskRow + static_cast<std::size_t>(x / 8)] &=
                    static_cast<std::uint8_t>(~(0x80U >> (x % 8)));
            }

    const fw::UniqueBitmap maskBitmap{::CreateBitmap(size.width, size.height, 1, 1, mask.data())};
    ICONINFO icon{};
    icon.fIcon = TRUE;
    icon.hbmMask = maskBitmap.Get();
    icon.hbmColor = picture.Get();
    return fw::UniqueIcon{::CreateIconIndirect(&icon)};
}

} // namespace korvane::controls
