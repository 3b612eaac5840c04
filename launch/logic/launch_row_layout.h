#pragma once

#include "base/dpi.h"
#include "base/geometry.h"

namespace korvane::launch {

// A row of the list of launch items: two lines of text, beside an icon in a frame.
struct LaunchRowLayout {
    base::Rect line; // along the bottom edge
    base::Rect frame;
    base::Rect icon;
    base::Rect firstLine;
    base::Rect secondLine;

    friend bool operator==(const LaunchRowLayout&, const LaunchRowLayout&) = default;
};

// `lineHeightPx` is that of one line of text, for the display.
[[nodiscard]] constexpr int LaunchRowHeight(int lineHeightPx, const base::DpiScale& scale) {
    return 2 * (lineHeightPx + scale(2));
}

// The list shows this many rows and no part of another.
inline constexpr int kLaunchRowsShown = 11;

[[nodiscard]] constexpr LaunchRowLayout LayOutLaunchRow(const base::Rect& row, int lineHeightPx,
                                                        const base::DpiScale& scale) {
    const auto at = [&](int x, int y) { return base::Point{row.left + scale(x), row.top + scale(y)}; };
    LaunchRowLayout out;
    out.line = {row.left, row.bottom - 1, row.right, row.bottom};
    out.frame = base::Rect::At(at(5, 4), {scale(38), scale(28)});
    out.icon = base::Rect::At(at(16, 10), {scale(16), scale(16)});
    out.firstLine = {row.left + scale(48), row.top + scale(2), row.right - scale(5), row.top + scale(2) + lineHeightPx};
    out.secondLine = out.firstLine.Offset(0, lineHeightPx);
    return out;
}

} // namespace korvane::launch
