#pragma once

namespace korvane::app {

enum class IconAction { kNone, kShowMenu, kShowBar };

// What a mouse message on the icon in the notification area does. While a message box of the bar is open, nothing.
[[nodiscard]] constexpr IconAction ActionOf(unsigned mouseMessage, bool messageBoxOpen) {
    constexpr unsigned kRightButtonUp = 0x0205;
    constexpr unsigned kLeftButtonDoubleClick = 0x0203;
    if (messageBoxOpen) return IconAction::kNone;
    if (mouseMessage == kRightButtonUp) return IconAction::kShowMenu;
    return mouseMessage == kLeftButtonDoubleClick ? IconAction::kShowBar : IconAction::kNone;
}

} // namespace korvane::app
