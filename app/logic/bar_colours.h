#pragma once

#include "base/colour.h"

namespace korvane::app {

using base::kThemeColour;

// The values of the setting that chooses the bar's colour.
inline constexpr int kColourTheme = 0;
inline constexpr int kColourSystem = 1;
inline constexpr int kColourUser = 2;

// `system` is the desktop window manager's colour. A value that is none of the three counts as the default, the
// system's.
[[nodiscard]] constexpr base::Colour BarColour(int choice, base::Colour system, base::Colour user) {
    if (choice == kColourTheme) return kThemeColour;
    return choice == kColourUser ? user : system;
}

} // namespace korvane::app
