#pragma once

#include <chrono>
#include <optional>

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

// The error of a shell that did not answer in time, as Windows' own does not while a user logs on.
inline constexpr unsigned long kShellBusy = 1460;

// How long to wait before such a shell is asked for the icon again; empty for any other error, and at last. Each
// question can hold the bar up for seconds, so they become rarer, and after some four minutes the shell is left alone:
// when it starts again, it reports that by itself, as one does that was not there yet.
[[nodiscard]] constexpr std::optional<std::chrono::seconds> NextAttempt(unsigned long error, int attemptsMade) {
    constexpr int kAttempts = 8;
    if (error != kShellBusy || attemptsMade >= kAttempts) return std::nullopt;
    return std::chrono::seconds{1 << attemptsMade};
}

} // namespace korvane::app
