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

// How bright the eye takes a colour to be, 0 to 255, with the weights of ITU-R BT.601. For looks of our own only; the
// bar's own rule goes by the darkest byte.
[[nodiscard]] constexpr int Brightness(base::Colour colour) {
    return (colour.Red() * 299 + colour.Green() * 587 + colour.Blue() * 114) / 1000;
}
[[nodiscard]] constexpr bool LooksLight(base::Colour colour) {
    return Brightness(colour) >= 140;
}

// Black or white, whichever stands out.
[[nodiscard]] constexpr base::Colour ReadableOn(base::Colour ground) {
    return LooksLight(ground) ? base::Colour::Rgb(0, 0, 0) : base::Colour::Rgb(255, 255, 255);
}

// True for an ink that can hardly be told from its ground.
[[nodiscard]] constexpr bool Vanishes(base::Colour ink, base::Colour ground) {
    const int difference = Brightness(ink) - Brightness(ground);
    return difference > -32 && difference < 32;
}

} // namespace korvane::controls
