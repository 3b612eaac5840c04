#pragma once

#include <cstdint>
#include <optional>

// Functions of Windows that may be missing, or whose libraries are loaded only when they are first needed.
namespace fw {

// The colour of window frames as the desktop window manager reports it, 0xAARRGGBB; empty when there is no such manager
// or it does not answer.
[[nodiscard]] std::optional<std::uint32_t> ColorizationColour();

} // namespace fw
