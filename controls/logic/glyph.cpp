#include "controls/logic/glyph.h"

namespace korvane::controls {

using base::Rect;

std::vector<Rect> DownArrow(const Rect& box) {
    std::vector<Rect> rows;
    for (int i = 0; i < box.Height() && box.left + i < box.right - i; ++i)
        rows.push_back({box.left + i, box.top + i, box.right - i, box.top + i + 1});
    return rows;
}

std::vector<Rect> SideArrow(const Rect& box, Direction direction) {
    std::vector<Rect> columns;
    for (int i = 0; i < box.Width() && box.top + i < box.bottom - i; ++i) {
        const int x = direction == Direction::kRight ? box.left + i : box.right - 1 - i;
        columns.push_back({x, box.top + i, x + 1, box.bottom - i});
    }
    return columns;
}

std::vector<Rect> Cross(const Rect& box, const base::DpiScale& scale) {
    const int stroke = scale(2);
    std::vector<Rect> rows;
    // A row of each stroke per line; where the strokes meet, the rows overlap and nothing is lost.
    for (int i = 0; i < box.Height(); ++i) {
        const int y = box.top + i;
        const int lastRow = box.Height() > 1 ? box.Height() - 1 : 1;
        const int along = (i * (box.Width() - stroke) + lastRow / 2) / lastRow;
        rows.push_back({box.left + along, y, box.left + along + stroke, y + 1});
        rows.push_back({box.right - along - stroke, y, box.right - along, y + 1});
    }
    return rows;
}

} // namespace korvane::controls
