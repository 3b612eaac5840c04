#pragma once

#include "base/geometry.h"

namespace korvane::fake_shell {

[[nodiscard]] base::Rect WholeScreen();

// Makes a rectangle of the one screen the work area that GetMonitorInfo tells in every process. False when Wine's place
// for it was not found. SPI_SETWORKAREA, which is Windows' way, has no effect under Wine.
bool PublishWorkArea(const base::Rect& area);

} // namespace korvane::fake_shell
