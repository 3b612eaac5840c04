#pragma once

#include <windows.h>

#include <span>

#include "base/geometry.h"
#include "framework/handle.h"

namespace korvane::controls {

// An icon of rectangles in one colour on nothing, `size` pixels large. Empty when Windows cannot make one.
[[nodiscard]] fw::UniqueIcon GlyphIcon(std::span<const base::Rect> rectangles, base::Size size, COLORREF colour);

} // namespace korvane::controls
