#pragma once

#include <windows.h>

#include "base/colour.h"

namespace korvane::controls {

// Windows' dialog for picking a colour, with all of it open. The user's custom colours are kept while the program runs.
class CAppColorDlg {
public:
    explicit CAppColorDlg(base::Colour initial) : colour_{initial} {}

    // False when the user picked nothing; the colour is then as it was.
    [[nodiscard]] bool ShowModal(HWND owner);

    [[nodiscard]] base::Colour Colour() const { return colour_; }

private:
    base::Colour colour_;
};

} // namespace korvane::controls
