#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>

#include "base/dpi.h"
#include "base/geometry.h"

namespace korvane::settings {

inline constexpr std::size_t kEncodedRectSize = 16;

// A rectangle as WindowPosRect keeps it: left, top, right and bottom, each a signed 32-bit number, low byte first.
[[nodiscard]] std::array<std::byte, kEncodedRectSize> EncodeRect(const base::Rect& rect);

// Empty unless there are exactly 16 bytes. What they say is not judged here.
[[nodiscard]] std::optional<base::Rect> DecodeRect(std::span<const std::byte> bytes);

// Where a window goes whose rectangle was saved in an earlier session, when the monitors may have stood otherwise. The
// rectangle comes back as it was when its upper edge, by which a window is dragged, can still be got hold of in one of
// the work areas. Otherwise it is moved, and where it must be cut, into the nearest one. Empty when the rectangle
// cannot have been a window's (no extent, or beyond the 16-bit range that window messages can name) or when there is no
// monitor: the caller then has a place of its own.
[[nodiscard]] std::optional<base::Rect> ReachableRect(const base::Rect& saved, std::span<const base::Rect> workAreas,
                                                      const base::DpiScale& scale);

} // namespace korvane::settings
