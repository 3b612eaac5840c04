#pragma once

#include <windows.h>

#include <algorithm>
#include <string>
#include <vector>

#include "base/geometry.h"
#include "framework/handle.h"

namespace korvane::test {

// A picture in memory into which a window is painted and which can then be looked at. It begins in a colour that no
// button uses, so that a place left unpainted is noticed.
class Canvas {
public:
    static constexpr COLORREF kUntouched = RGB(1, 254, 3);

    explicit Canvas(base::Size size) : size_{size}, dc_{::CreateCompatibleDC(nullptr)} {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = size.width;
        info.bmiHeader.biHeight = -size.height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        bitmap_.Reset(::CreateDIBSection(dc_.Get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
        previous_ = ::SelectObject(dc_.Get(), bitmap_.Get());
        Fill({0, 0, size.width, size.height}, kUntouched);
    }
    Canvas(Canvas&&) = default;
    ~Canvas() {
        if (dc_) ::SelectObject(dc_.Get(), previous_);
    }

    [[nodiscard]] HDC Dc() const { return dc_.Get(); }
    [[nodiscard]] base::Size Extent() const { return size_; }
    [[nodiscard]] COLORREF Pixel(int x, int y) const { return ::GetPixel(dc_.Get(), x, y); }

    void Fill(const base::Rect& area, COLORREF colour) const {
        const fw::UniqueBrush brush{::CreateSolidBrush(colour)};
        const RECT r{area.left, area.top, area.right, area.bottom};
        ::FillRect(dc_.Get(), &r, brush.Get());
    }

    // Everything, for comparing two pictures.
    [[nodiscard]] std::vector<COLORREF> Pixels() const {
        std::vector<COLORREF> pixels;
        for (int y = 0; y < size_.height; ++y)
            for (int x = 0; x < size_.width; ++x) pixels.push_back(Pixel(x, y));
        return pixels;
    }

    // A part as rows of text, '#' where it has the given colour: a failure can then be looked at.
    [[nodiscard]] std::string Picture(const base::Rect& part, COLORREF ink) const {
        std::string picture;
        for (int y = part.top; y < part.bottom; ++y) {
            for (int x = part.left; x < part.right; ++x) picture += Pixel(x, y) == ink ? '#' : '.';
            picture += '\n';
        }
        return picture;
    }

    // The smallest rectangle around everything inside `part` that has not the given colour.
    [[nodiscard]] base::Rect Content(const base::Rect& part, COLORREF ground) const {
        base::Rect found{part.right, part.bottom, part.left, part.top};
        for (int y = part.top; y < part.bottom; ++y) {
            for (int x = part.left; x < part.right; ++x) {
                if (Pixel(x, y) == ground) continue;
                found = {std::min(found.left, x), std::min(found.top, y), std::max(found.right, x + 1),
                         std::max(found.bottom, y + 1)};
            }
        }
        return found.Empty() ? base::Rect{} : found;
    }

private:
    base::Size size_;
    fw::UniqueMemoryDc dc_;
    fw::UniqueBitmap bitmap_;
    HGDIOBJ previous_ = nullptr;
};

} // namespace korvane::test
