#pragma once

#include "base/dpi.h"
#include "base/geometry.h"

namespace korvane::controls {

// Values of TrackPopupMenu: TPM_RETURNCMD, TPM_VERTICAL and TPM_RIGHTBUTTON, then the same with TPM_BOTTOMALIGN.
inline constexpr unsigned kOpenBelow = 322;
inline constexpr unsigned kOpenAbove = 354;

struct MenuPlacement {
    unsigned flags = kOpenBelow;
    base::Point at; // of the screen
    friend constexpr bool operator==(const MenuPlacement&, const MenuPlacement&) = default;
};

// What a menu will measure, before Windows has measured it. `items` includes the separators; `rowPx` is the system's
// height of a menu row, which is scaled already.
[[nodiscard]] constexpr int EstimatedMenuHeight(int items, int separators, int rowPx, const base::DpiScale& scale) {
    return rowPx * (items - separators) + scale(8) * separators + scale(6);
}

// Below the button where the work area has room for the menu, otherwise above it.
[[nodiscard]] constexpr MenuPlacement PlaceMenu(const base::Rect& button, int menuHeightPx, int workAreaBottom) {
    if (workAreaBottom >= button.bottom + menuHeightPx) return {kOpenBelow, {button.left, button.bottom}};
    return {kOpenAbove, {button.left, button.top}};
}

} // namespace korvane::controls
