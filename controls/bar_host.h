#pragma once

#include <windows.h>

#include "base/colour.h"

namespace korvane::controls {

// What a control of the bar needs of the bar itself. The frame implements it; tests have their own.
class BarHost {
public:
    // Borrowed; lives as long as the bar.
    [[nodiscard]] virtual HFONT BarFont() const = 0;

    // A pop-up of the bar's menu by position (POPUP_MAIN and so on). Borrowed.
    [[nodiscard]] virtual HMENU Popup(int position) const = 0;

    // Shows that pop-up with the TPM_ flags at a point of the screen, keeps the bar from hiding meanwhile, and gives
    // the chosen command, or 0.
    virtual UINT TrackPopup(int position, UINT flags, POINT at) = 0;

protected:
    ~BarHost() = default;
};

} // namespace korvane::controls
