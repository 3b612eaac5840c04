#pragma once

#include <windows.h>

#include "base/colour.h"

namespace korvane::controls {

// The colours of the date/time pop-up: the bar's own, and for its texts one that stands out from it.
struct PopUpLook {
    HBRUSH ground = nullptr; // borrowed from the bar
    base::Colour groundColor;
    base::Colour textColor;
};

[[nodiscard]] PopUpLook LookOn(HBRUSH bar);

} // namespace korvane::controls
