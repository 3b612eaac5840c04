#pragma once

namespace korvane::app {

enum class TypingStep { kNone, kBegins, kEnds };

// What a key that goes down in the bar says about the user: still typing, or done with it. Enter says nothing, because
// what it starts does; held keys of Ctrl, Shift and Alt are not typed yet.
[[nodiscard]] constexpr TypingStep StepOfKey(unsigned virtualKey) {
    constexpr unsigned kReturn = 0x0D;
    constexpr unsigned kShift = 0x10;
    constexpr unsigned kControl = 0x11;
    constexpr unsigned kAlt = 0x12;
    constexpr unsigned kEscape = 0x1B;
    constexpr unsigned kLeftWindows = 0x5B;
    constexpr unsigned kRightWindows = 0x5C;
    switch (virtualKey) {
    case kEscape:
        return TypingStep::kEnds;
    case kReturn:
    case kShift:
    case kControl:
    case kAlt:
    case kLeftWindows:
    case kRightWindows:
        return TypingStep::kNone;
    default:
        return TypingStep::kBegins;
    }
}

} // namespace korvane::app
