#pragma once

#include "base/colour.h"
#include "controls/logic/button_state.h"

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
    kButtonText,    // COLOR_BTNTEXT
    kWindowText,    // COLOR_WINDOWTEXT, on a light bar
    kWindow,        // COLOR_WINDOW: the light window background, as text on a dark bar
    kHighlightText, // COLOR_HIGHLIGHTTEXT
    kGreyText,      // COLOR_GRAYTEXT
};

[[nodiscard]] constexpr BarTextColour TextColourOn(base::Colour bar) {
    if (bar == kSystemDefaultColour) return BarTextColour::kButtonText;
    return IsLightBar(bar) ? BarTextColour::kWindowText : BarTextColour::kWindow;
}

// In a scheme of high contrast the bar is a window like any other, and what the mouse or the keyboard is on is
// highlighted.
[[nodiscard]] constexpr BarTextColour TextColourInHighContrast(ButtonState state) {
    switch (state) {
    case ButtonState::kHot:
    case ButtonState::kPressed:
        return BarTextColour::kHighlightText;
    case ButtonState::kDisabled:
        return BarTextColour::kGreyText;
    case ButtonState::kNormal:
        break;
    }
    return BarTextColour::kWindowText;
}

// How bright the eye takes a colour to be, 0 to 255, with the weights of ITU-R BT.601. For looks of our own only; the
// bar's own rule goes by the darkest byte.
[[nodiscard]] constexpr int Brightness(base::Colour colour) {
    return (colour.Red() * 299 + colour.Green() * 587 + colour.Blue() * 114) / 1000;
}
[[nodiscard]] constexpr bool LooksLight(base::Colour colour) {
    return Brightness(colour) >= 140;
}

} // namespace korvane::controls
