#pragma once

#include "app/logic/bar_layout.h"
#include "base/geometry.h"

namespace korvane::app {

// Where the floating bar opens when no place is remembered: as wide as the narrowest supported screen, in the middle of
// the work area's width and a fifth of the way down. `borders` is what the window's frame adds to the client area.
[[nodiscard]] constexpr base::Rect DefaultFloatingRect(const base::Rect& workArea, base::Size borders,
                                                       const base::DpiScale& scale) {
    constexpr int kDesignWidthPx = 1024;
    const base::Size size{std::min(scale(kDesignWidthPx) + borders.width, workArea.Width()),
                          scale(kBarHeightPx) + borders.height};
    return base::Rect::At({workArea.left + (workArea.Width() - size.width) / 2, workArea.top + workArea.Height() / 5},
                          size);
}

// A remembered rectangle with the height that the bar has: the floating bar can be widened but never made taller.
[[nodiscard]] constexpr base::Rect WithBarHeight(base::Rect rect, base::Size borders, const base::DpiScale& scale) {
    rect.bottom = rect.top + scale(kBarHeightPx) + borders.height;
    return rect;
}

} // namespace korvane::app
