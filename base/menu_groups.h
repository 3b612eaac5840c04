#pragma once

#include <vector>

namespace korvane::base {

// Long menus stand in blocks of five with a separator between two blocks, and none after the last.
inline constexpr int kMenuBlock = 5;

// The positions at which separators are to be inserted, one after the other, into a menu of `items` items: 5, then
// every sixth position while it is below the growing item count.
[[nodiscard]] inline std::vector<int> SeparatorPositions(int items) {
    std::vector<int> positions;
    for (int at = kMenuBlock, count = items; at < count; at += kMenuBlock + 1, ++count) positions.push_back(at);
    return positions;
}

} // namespace korvane::base
