#pragma once

#include <windows.h>

#include <vector>

#include "base/geometry.h"

namespace fw {

// The work areas of all monitors, the primary one first.
[[nodiscard]] std::vector<korvane::base::Rect> WorkAreas();

// The work area of the monitor that is nearest to a window, or to a rectangle of the screen.
[[nodiscard]] korvane::base::Rect WorkAreaOf(HWND window);
[[nodiscard]] korvane::base::Rect WorkAreaAt(const korvane::base::Rect& place);

} // namespace fw
