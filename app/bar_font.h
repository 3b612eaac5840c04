#pragma once

#include "framework/handle.h"

namespace korvane::app {

// The font of everything on the bar: from Windows 8 on the system's icon-title font, before that "Meiryo UI" of 9
// points.
[[nodiscard]] fw::UniqueFont MakeBarFont(bool windows8OrLater);

} // namespace korvane::app
