#pragma once

#include "base/colour.h"

namespace korvane::controls {

// In place of a bar colour: the system's own colours are to be used.
inline constexpr base::Colour kSystemDefaultColour{0xFFFFFFFF};

// The darkest of red, green and blue at which a bar begins to count as light.
inline constexpr int kLightBarThreshold = 193;

// All bits set count as light, so that the system default gets the pictures for a light bar.
[[nodiscard]] constexpr bool IsLightBar(base::Colour bar) {
    return bar.Darkest() >= kLightBarThreshold;
}

// What text and arrows on the bar are drawn in. The colours behind the names are the system's, asked when painting.
enum class BarTextColour {
    kButtonText, // COLOR_BTNTEXT
    kWindowText, // COLOR_WINDOWTEXT, on a light bar
    kWindow,     // COLOR_WINDOW: the light window background, as text on a dark bar
};

[[nodiscard]] constexpr BarTextColour TextColourOn(base::Colour bar) {
    if (bar == kSystemDefaultColour) return BarTextColour::kButtonText;
    return IsLightBar(bar) ? BarTextColour::kWindowText : BarTextColour::kWindow;
}

// Whether the eye takes a colour for light; a saturated yellow does, though its blue is 0. For looks of our own only.
[[nodiscard]] constexpr bool LooksLight(base::Colour colour) {
    // The weights of ITU-R BT.601, in thousandths.
    return colour.Red() * 299 + colour.Green() * 587 + colour.Blue() * 114 >= 140 * 1000;
}

} // namespace korvane::controls
