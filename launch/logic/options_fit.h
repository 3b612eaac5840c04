#pragma once

#include <algorithm>

#include "base/geometry.h"

namespace korvane::launch {

// How the options are fitted into a screen: everything but the page keeps its size.
struct OptionsFit {
    base::Size window;
    base::Size page; // of the part of it that is on view, with the scroll bars
    bool scrolled = false;

    friend constexpr bool operator==(const OptionsFit&, const OptionsFit&) = default;
};

// `window` and `page` are the full sizes, `bars` the width of a vertical and the height of a horizontal scroll bar.
[[nodiscard]] constexpr OptionsFit FitOptions(base::Size window, base::Size page, base::Size area, base::Size bars) {
    const bool tooHigh = window.height > area.height;
    if (!tooHigh && window.width <= area.width) return {window, page, false};
    // A bar stands beside the page, where there may be no room for it either.
    const bool horizontalBar = window.width + (tooHigh ? bars.width : 0) > area.width;
    const bool verticalBar = tooHigh || window.height + (horizontalBar ? bars.height : 0) > area.height;
    const base::Size wanted{window.width + (verticalBar ? bars.width : 0),
                            window.height + (horizontalBar ? bars.height : 0)};
    const base::Size fitted{std::min(wanted.width, area.width), std::min(wanted.height, area.height)};
    return {fitted,
            {std::max(page.width + fitted.width - window.width, 0),
             std::max(page.height + fitted.height - window.height, 0)},
            true};
}

// Where the part on view begins, from 0 to what leaves nothing behind the end.
[[nodiscard]] constexpr int ScrollPosition(int wanted, int extent, int content) {
    return std::clamp(wanted, 0, std::max(content - extent, 0));
}

// Where it begins after it has moved no farther than it must to show something from `first` to `end`; of what is larger
// it shows the beginning.
[[nodiscard]] constexpr int ScrolledTo(int position, int extent, int first, int end) {
    if (end > position + extent) position = end - extent;
    return std::min(position, first);
}

} // namespace korvane::launch
