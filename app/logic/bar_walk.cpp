#include "app/logic/bar_walk.h"

#include <algorithm>

namespace korvane::app {
namespace {

// Windows' virtual-key codes.
constexpr unsigned kReturnKey = 0x0D;
constexpr unsigned kEscapeKey = 0x1B;
constexpr unsigned kSpaceKey = 0x20;
constexpr unsigned kLeftKey = 0x25;
constexpr unsigned kUpKey = 0x26;
constexpr unsigned kRightKey = 0x27;
constexpr unsigned kDownKey = 0x28;
constexpr unsigned kF6Key = 0x75;
constexpr unsigned kF10Key = 0x79;

} // namespace

WalkKey WalkKeyOf(const WalkInput& input) {
    if (input.control || input.alt) return WalkKey::kNone;
    if (input.virtualKey == kF6Key) return input.shift ? WalkKey::kPrevious : WalkKey::kNext;
    if (input.shift) return WalkKey::kNone;
    if (input.virtualKey == kF10Key) return WalkKey::kMainMenu;
    if (!input.onButton) return WalkKey::kNone;
    switch (input.virtualKey) {
    case kLeftKey:
    case kUpKey:
        return WalkKey::kPreviousButton;
    case kRightKey:
    case kDownKey:
        return WalkKey::kNextButton;
    case kReturnKey:
    case kSpaceKey:
        return WalkKey::kPress;
    case kEscapeKey:
        return WalkKey::kBack;
    default:
        return WalkKey::kNone;
    }
}

std::optional<std::size_t> NextStop(std::span<const WalkStop> stops, WalkKey key) {
    const bool back = key == WalkKey::kPrevious || key == WalkKey::kPreviousButton;
    const bool boxesToo = key == WalkKey::kNext || key == WalkKey::kPrevious;
    const auto found = std::ranges::find_if(stops, &WalkStop::current);
    const std::size_t count = stops.size();
    // One step before the first, or behind the last, when the keyboard is nowhere on the bar.
    std::size_t at = static_cast<std::size_t>(found - stops.begin());
    if (found == stops.end()) at = back ? 0 : count - 1;
    for (std::size_t step = 0; step < count; ++step) {
        at = (at + (back ? count - 1 : 1)) % count;
        const WalkStop& stop = stops[at];
        if (stop.usable && !stop.current && (boxesToo || !stop.box)) return at;
    }
    return std::nullopt;
}

} // namespace korvane::app
