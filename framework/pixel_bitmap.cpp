#include "framework/pixel_bitmap.h"

#include <algorithm>
#include <utility>

#include "framework/gdi.h"
#include "framework/menu_pixels.h"

namespace fw {
namespace {

using korvane::base::Rect;
using korvane::base::Size;

bool PaintOn(const PixelBitmap& target, std::uint32_t ground, const Painter& paint) {
    std::ranges::fill(target.Pixels(), ground);
    const UniqueMemoryDc dc{::CreateCompatibleDC(nullptr)};
    const SelectedObject selected{dc.Get(), target.Bitmap()};
    const bool painted = paint(dc.Get());
    // Drawing may be held back until the pixels are read by GDI; they are going to be read directly.
    ::GdiFlush();
    return painted;
}

} // namespace

PixelBitmap::PixelBitmap(Size size) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size.width;
    info.bmiHeader.biHeight = -size.height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    bitmap_.Reset(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (bitmap_)
        pixels_ = {static_cast<std::uint32_t*>(bits),
                   static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height)};
}

UniqueBitmap PixelBitmap::Take() {
    pixels_ = {};
    return std::move(bitmap_);
}

UniqueBitmap PremultipliedPicture(Size size, const Painter& paint) {
    constexpr std::uint32_t kBlack = 0x00000000;
    constexpr std::uint32_t kWhite = 0x00FFFFFF;
    PixelBitmap picture{size};
    const PixelBitmap overWhite{size};
    if (!picture.Bitmap() || !overWhite.Bitmap()) return {};
    if (!PaintOn(picture, kBlack, paint) || !PaintOn(overWhite, kWhite, paint)) return {};
    std::ranges::transform(picture.Pixels(), overWhite.Pixels(), picture.Pixels().begin(), &PremultipliedPixel);
    return picture.Take();
}

UniqueBitmap ChangedCopyOf(HBITMAP picture, const std::function<std::uint32_t(std::uint32_t)>& change) {
    DIBSECTION section{};
    if (::GetObjectW(picture, sizeof section, &section) != sizeof section) return {};
    PixelBitmap copy{{static_cast<int>(section.dsBm.bmWidth), static_cast<int>(section.dsBm.bmHeight)}};
    const std::span from{static_cast<const std::uint32_t*>(section.dsBm.bmBits), copy.Pixels().size()};
    std::ranges::transform(from, copy.Pixels().begin(), change);
    return copy.Take();
}

void DrawPremultiplied(HDC dc, const Rect& target, HBITMAP picture) {
    const UniqueMemoryDc source{::CreateCompatibleDC(dc)};
    const SelectedObject selected{source.Get(), picture};
    constexpr BLENDFUNCTION kByAlpha{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
    ::GdiAlphaBlend(dc, target.left, target.top, target.Width(), target.Height(), source.Get(), 0, 0, target.Width(),
                    target.Height(), kByAlpha);
}

void DrawSilhouette(HDC dc, const Rect& target, COLORREF colour, const Painter& paint) {
    const UniqueBitmap picture = PremultipliedPicture(target.Extent(), paint);
    const UniqueBitmap silhouette =
        ChangedCopyOf(picture.Get(), [colour](std::uint32_t pixel) { return PixelInColour(pixel, colour); });
    if (silhouette) DrawPremultiplied(dc, target, silhouette.Get());
}

} // namespace fw
