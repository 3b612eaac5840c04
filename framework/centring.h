#pragma once

#include <windows.h>

#include "base/geometry.h"

namespace fw {

// Where a window of the given size goes when it is centred on `centre`, kept inside `workArea`: halves are rounded
// toward zero, and when it does not fit its left and top edges win.
[[nodiscard]] korvane::base::Point CentredOrigin(korvane::base::Size window, const korvane::base::Rect& centre,
                                                 const korvane::base::Rect& workArea);

enum class CentreOn { kOwner, kCurrentMonitor };

// Moves a window to the middle of `centreOn` (null: of its parent or owner) or of the work area of its own monitor. Its
// size, z-order and activation stay as they are.
void CentreWindow(HWND window, HWND centreOn = nullptr, CentreOn mode = CentreOn::kOwner);

} // namespace fw
