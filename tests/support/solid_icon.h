#pragma once

#include <windows.h>

#include <vector>

#include "framework/handle.h"
#include "tests/support/canvas.h"

namespace korvane::test {

// A small icon of one colour.
[[nodiscard]] inline fw::UniqueIcon SolidIcon(COLORREF colour) {
    constexpr int kSizePx = 16;
    const std::vector<BYTE> opaque(kSizePx * kSizePx / 8);
    std::vector<RGBQUAD> picture;
    for (int i = 0; i < kSizePx * kSizePx; ++i)
        picture.push_back({GetBValue(colour), GetGValue(colour), GetRValue(colour), 255});
    return fw::UniqueIcon{
        ::CreateIcon(nullptr, kSizePx, kSizePx, 1, 32, opaque.data(), reinterpret_cast<const BYTE*>(picture.data()))};
}

// The colour in the middle of an icon; that of an untouched canvas when there is no icon.
[[nodiscard]] inline COLORREF ColourOf(HICON icon) {
    constexpr int kSizePx = 16;
    const Canvas canvas{{kSizePx, kSizePx}};
    if (icon) ::DrawIconEx(canvas.Dc(), 0, 0, icon, kSizePx, kSizePx, 0, nullptr, DI_NORMAL);
    return canvas.Pixel(kSizePx / 2, kSizePx / 2);
}

} // namespace korvane::test
