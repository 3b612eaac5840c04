#pragma once

#include <algorithm>
#include <string>

#include "launch/logic/launch_limits.h"

// What the options' launch menu page decides. Rows are counted from 0; no row is -1.
namespace korvane::launch {

inline constexpr int kNoRow = -1;

// Which of the page's buttons are enabled.
struct LaunchPageButtons {
    bool moveUp = false;
    bool moveDown = false;
    bool add = false;
    bool edit = false;
    bool remove = false;
    bool import = false;

    friend constexpr bool operator==(const LaunchPageButtons&, const LaunchPageButtons&) = default;
};

[[nodiscard]] constexpr bool CanDelete(int count, int selected) {
    return selected >= 0 && count > MinLaunchItems;
}

[[nodiscard]] constexpr LaunchPageButtons LaunchPageButtonsFor(int count, int selected) {
    return {.moveUp = selected >= 1,
            .moveDown = selected >= 0 && selected < count - 1,
            .add = count < MaxLaunchItems,
            .edit = selected >= 0,
            .remove = CanDelete(count, selected),
            .import = count < MaxLaunchItems};
}

// Where a new item goes: behind the selected row, or in front of it. Without one that is the list's beginning, or, in
// front of nothing, its end.
[[nodiscard]] constexpr int InsertRow(int count, int selected, bool inFront) {
    if (!inFront) return selected + 1;
    return selected >= 0 ? selected : count;
}

// The row to be selected when one has been taken away: the one that took its place, or the new last one.
[[nodiscard]] constexpr int RowAfterDelete(int countLeft, int deleted) {
    return std::min(deleted, countLeft - 1);
}

// True for the rows that stand on the launch buttons.
[[nodiscard]] constexpr bool IsButtonRow(int row) {
    return row < MinLaunchItems;
}

// "[L-1]" to "[L-3]" for the launch buttons, "[1]" and so on for the launch menu.
[[nodiscard]] std::wstring RowLabel(int row);

} // namespace korvane::launch
