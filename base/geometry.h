#pragma once

#include <algorithm>

namespace korvane::base {

// Pixels throughout. A rectangle excludes its right and bottom edges, as Windows' own do.
struct Point {
    int x = 0;
    int y = 0;
    friend constexpr bool operator==(const Point&, const Point&) = default;
};

struct Size {
    int width = 0;
    int height = 0;
    friend constexpr bool operator==(const Size&, const Size&) = default;
};

struct Rect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    [[nodiscard]] constexpr int Width() const { return right - left; }
    [[nodiscard]] constexpr int Height() const { return bottom - top; }
    [[nodiscard]] constexpr Size Extent() const { return {Width(), Height()}; }
    [[nodiscard]] constexpr Point TopLeft() const { return {left, top}; }
    [[nodiscard]] constexpr bool Empty() const { return right <= left || bottom <= top; }
    [[nodiscard]] constexpr bool Contains(Point p) const {
        return p.x >= left && p.x < right && p.y >= top && p.y < bottom;
    }
    [[nodiscard]] constexpr Rect Offset(int dx, int dy) const { return {left + dx, top + dy, right + dx, bottom + dy}; }
    [[nodiscard]] constexpr Rect Inset(int by) const { return {left + by, top + by, right - by, bottom - by}; }

    static constexpr Rect At(Point topLeft, Size size) {
        return {topLeft.x, topLeft.y, topLeft.x + size.width, topLeft.y + size.height};
    }
    friend constexpr bool operator==(const Rect&, const Rect&) = default;
};

constexpr Rect Intersection(const Rect& a, const Rect& b) {
    const Rect common{std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
                      std::min(a.bottom, b.bottom)};
    return common.Empty() ? Rect{} : common;
}

// A box of the given size in the middle of `outer`; what does not halve is rounded toward zero.
constexpr Rect Centred(const Rect& outer, Size size) {
    return Rect::At({outer.left + (outer.Width() - size.width) / 2, outer.top + (outer.Height() - size.height) / 2},
                    size);
}

} // namespace korvane::base
