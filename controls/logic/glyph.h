#pragma once

#include <vector>

#include "base/dpi.h"
#include "base/geometry.h"

// The small figures on the buttons as rows and columns of pixels. A polygon would leave it to the rasteriser which
// pixels of an edge are inside; these come out the same everywhere.
namespace korvane::controls {

// 7 by 4 at 96 dpi. The width follows from the height, so that the slopes stay at 45 degrees at every scale.
[[nodiscard]] constexpr base::Size DownArrowSize(const base::DpiScale& scale) {
    const int height = scale(4);
    return {2 * height - 1, height};
}

// 4 by 8 at 96 dpi.
[[nodiscard]] constexpr base::Size SideArrowSize(const base::DpiScale& scale) {
    const int width = scale(4);
    return {width, 2 * width};
}

// One rectangle per row of a triangle that points down and fills the box.
[[nodiscard]] std::vector<base::Rect> DownArrow(const base::Rect& box);

enum class Direction { kLeft, kRight };

// One rectangle per column; the flat side is the edge opposite to where the arrow points.
[[nodiscard]] std::vector<base::Rect> SideArrow(const base::Rect& box, Direction direction);

// A diagonal cross in a square box, with strokes two design pixels wide.
[[nodiscard]] std::vector<base::Rect> Cross(const base::Rect& box, const base::DpiScale& scale);

} // namespace korvane::controls
