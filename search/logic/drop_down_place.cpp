#include "search/logic/drop_down_place.h"

#include <algorithm>

namespace korvane::search {

base::Rect PlaceDropDown(const DropDownSurroundings& around) {
    const auto& [region, natural, work] = around;
    const base::Size size{std::max(natural.width, region.Width()), natural.height};

    // When neither side has room the larger one is taken.
    const int below = work.bottom - region.bottom;
    const int above = region.top - work.top;
    const bool goesBelow = below >= size.height || below >= above;
    const int top = goesBelow ? region.bottom : region.top - size.height;

    // Of a pop-up wider than the work area the left part is the one to see.
    const int left = std::max(std::min(region.left, work.right - size.width), work.left);
    return base::Rect::At({left, top}, size);
}

} // namespace korvane::search
