#pragma once

#include <array>

namespace korvane::app {

// What the states of the main menu's items depend on.
struct MenuSituation {
    bool desktopBarMode = false;
    bool autoHide = false;
    bool topmost = false; // the setting, which counts for the floating bar only
    bool clipboardMonitored = false;
    bool screenSaverThere = false;
    bool otherAutoHideBarOnEdge = false; // the edge that the bar is docked to
};

struct MenuItemState {
    unsigned command = 0;
    bool checked = false;
    bool enabled = true;
    friend bool operator==(const MenuItemState&, const MenuItemState&) = default;
};

inline constexpr int kMenuItemsWithState = 5;

// The state of every item of the main menu that has one, in ascending order of the commands.
[[nodiscard]] std::array<MenuItemState, kMenuItemsWithState> MenuStates(const MenuSituation& now);

} // namespace korvane::app
