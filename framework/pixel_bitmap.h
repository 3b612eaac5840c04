#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <span>

#include "base/geometry.h"
#include "framework/handle.h"

namespace fw {

// What an image is made of.
enum class ImageKind {
    kPicture, // colours of its own
    kDrawing, // one colour, in whose place high contrast puts that of the text around it
};

// A bitmap of 32-bit pixels, top row first. Windows may have none to give; its pixels are none then.
class PixelBitmap {
public:
    explicit PixelBitmap(korvane::base::Size size);

    [[nodiscard]] HBITMAP Bitmap() const { return bitmap_.Get(); }
    [[nodiscard]] std::span<std::uint32_t> Pixels() const { return pixels_; }
    [[nodiscard]] UniqueBitmap Take();

private:
    UniqueBitmap bitmap_;
    std::span<std::uint32_t> pixels_;
};

// Paints from the origin of the device context on; false when it could not.
using Painter = std::function<bool(HDC dc)>;

// What a painter leaves on any ground, with its colours multiplied by alpha: it is asked to paint twice. Empty when it
// could not.
[[nodiscard]] UniqueBitmap PremultipliedPicture(korvane::base::Size size, const Painter& paint);

// A copy of such a picture with every pixel changed; empty for a bitmap of another kind.
[[nodiscard]] UniqueBitmap ChangedCopyOf(HBITMAP picture, const std::function<std::uint32_t(std::uint32_t)>& change);

// Shows such a picture.
void DrawPremultiplied(HDC dc, const korvane::base::Rect& target, HBITMAP picture);

// Shows what a painter paints in one colour alone: of its own colours only counts how dense they are.
void DrawSilhouette(HDC dc, const korvane::base::Rect& target, COLORREF colour, const Painter& paint);

} // namespace fw
