#pragma once

#include <windows.h>

#include <memory>

#include "base/geometry.h"
#include "framework/handle.h"

namespace Gdiplus {
class Bitmap;
}

namespace fw {

// GDI+ for the length of its life. Images must be gone before it ends.
class GdiplusSession {
public:
    GdiplusSession();
    GdiplusSession(const GdiplusSession&) = delete;
    GdiplusSession& operator=(const GdiplusSession&) = delete;
    ~GdiplusSession();

private:
    ULONG_PTR token_ = 0;
};

// A picture with transparency, read from a resource of the type "PNG".
class PngImage {
public:
    PngImage();
    PngImage(PngImage&&) noexcept;
    PngImage& operator=(PngImage&&) noexcept;
    ~PngImage();

    // Empty when the resource is missing or damaged.
    [[nodiscard]] static PngImage FromResource(UINT id);

    explicit operator bool() const { return bitmap_ != nullptr; }
    // Pixels of the picture itself; 0 by 0 when it cannot be read.
    [[nodiscard]] korvane::base::Size Extent() const;
    // Draws the picture into the rectangle, scaled with care when the sizes differ.
    void Draw(HDC dc, const korvane::base::Rect& target) const;
    // A DIB section of the same size, black where the picture is transparent; empty when it cannot be read.
    [[nodiscard]] UniqueBitmap ToBitmap() const;

private:
    struct Release {
        void operator()(Gdiplus::Bitmap* bitmap) const;
    };
    std::unique_ptr<Gdiplus::Bitmap, Release> bitmap_;
};

} // namespace fw
