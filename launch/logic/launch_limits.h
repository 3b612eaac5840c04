#pragma once

#include "res/ids.h"

namespace korvane::launch {

// The first items are the launch buttons; the list never gets shorter than these.
inline constexpr int MinLaunchItems = 3;
// The buttons, and a menu entry for each of the characters 1 to 9 and A to Z.
inline constexpr int MaxLaunchItems = 38;

// How many more items there is room for.
[[nodiscard]] constexpr int FreePlaces(int count) {
    return count < MaxLaunchItems ? MaxLaunchItems - count : 0;
}

// Items are counted from 0 in list order. The first three have the commands of the launch buttons, the others those of
// the launch menu's entries.
[[nodiscard]] constexpr unsigned LaunchItemCommandId(int index) {
    return static_cast<unsigned>(ID_LAUNCH_BUTTON_1 + index);
}
[[nodiscard]] constexpr int LaunchItemIndex(unsigned command) {
    return static_cast<int>(command) - ID_LAUNCH_BUTTON_1;
}

static_assert(LaunchItemCommandId(MinLaunchItems) == ID_LAUNCH_FIRST);
static_assert(LaunchItemCommandId(MaxLaunchItems - 1) == ID_LAUNCH_LAST);

} // namespace korvane::launch
