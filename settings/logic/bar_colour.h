#pragma once

#include "base/colour.h"

namespace korvane::settings {

// The values of the setting that chooses the bar's colour.
inline constexpr int kThemeColour = 0;
inline constexpr int kSystemColour = 1;
inline constexpr int kUserColour = 2;

// `system` is the desktop window manager's colour. A value that is none of the three counts as the default, the
// system's.
[[nodiscard]] constexpr base::Colour BarColour(int choice, base::Colour system, base::Colour user) {
    if (choice == kThemeColour) return base::kThemeColour;
    return choice == kUserColour ? user : system;
}

} // namespace korvane::settings
