#pragma once

#include <cstddef>
#include <optional>
#include <span>

namespace korvane::app {

// Walking along the bar with the keyboard.

// Something on the bar that the keyboard can be on, in the order in which the eye meets them.
struct WalkStop {
    bool box = false;     // one of the two boxes
    bool usable = true;   // to be seen and enabled
    bool current = false; // has the keyboard
};

enum class WalkKey { kNone, kNext, kPrevious, kNextButton, kPreviousButton, kBack, kPress, kMainMenu };

struct WalkInput {
    unsigned virtualKey = 0;
    bool onButton = false; // or in a box
    bool control = false;
    bool shift = false;
    bool alt = false;
};

// What a key means on the way: F6 walks over everything and Shift+F6 back; on a button the arrows walk over the
// buttons, Enter and the space bar press it and Esc goes back to the box. F10 is the main menu's.
[[nodiscard]] WalkKey WalkKeyOf(const WalkInput& input);

// The stop that a walking key leads to, round the end of the bar too; empty when there is no other one. Without a
// current stop the walk begins at the first or, backwards, at the last.
[[nodiscard]] std::optional<std::size_t> NextStop(std::span<const WalkStop> stops, WalkKey key);

} // namespace korvane::app
