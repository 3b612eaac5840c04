#pragma once

#include <windows.h>

#include "controls/bar_painting.h"

namespace korvane::controls {

// The colours of the date/time pop-up: the bar's own, and for its texts some that stand out from it.
struct PopUpLook {
    HBRUSH ground = nullptr; // borrowed from the bar
    base::Colour groundColor;
    Ink text;
    Ink dim; // what belongs to other months, and lines
};

[[nodiscard]] PopUpLook LookOn(HBRUSH bar);

} // namespace korvane::controls
