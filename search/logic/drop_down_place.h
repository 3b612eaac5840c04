#pragma once

#include "base/geometry.h"

namespace korvane::search {

// Where the history drop-down goes. All in screen pixels.
struct DropDownSurroundings {
    base::Rect region;   // the box with its buttons
    base::Size natural;  // what the pop-up asks for
    base::Rect workArea; // of the region's monitor
};

// As wide as the region if that is wider than the natural width, right below it, or above it when only there is room.
// It starts at the region's left edge unless it would then leave the work area at the side.
[[nodiscard]] base::Rect PlaceDropDown(const DropDownSurroundings& around);

} // namespace korvane::search
