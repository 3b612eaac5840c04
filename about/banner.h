#pragma once

#include <optional>

#include "about/logic/banner_choice.h"
#include "framework/dpi.h"
#include "framework/handle.h"

namespace korvane::about {

// The head of the about box as a DIB section: the given image, or the plain one where that cannot be had. Empty when
// not even that is there. GDI+ must be running.
[[nodiscard]] fw::UniqueBitmap LoadBanner(std::optional<unsigned> finer = FinerBannerFor(fw::Scale().Dpi()));

} // namespace korvane::about
