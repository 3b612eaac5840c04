#pragma once

#include <windows.h>

#include <span>

#include "base/menu_rows.h"

namespace fw {

// Puts the rows into a pop-up, in place of whatever it held. A pop-up that stood in it is not destroyed.
void FillMenu(HMENU popup, std::span<const korvane::base::MenuRow> rows);

} // namespace fw
