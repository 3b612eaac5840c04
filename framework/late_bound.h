#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>

// Functions of Windows that may be missing, or whose libraries are loaded only when they are first needed.
namespace fw {

// The colour of window frames as the desktop window manager reports it, 0xAARRGGBB; empty when there is no such manager
// or it does not answer.
[[nodiscard]] std::optional<std::uint32_t> ColorizationColour();

// True for a window that its program shows but the desktop window manager does not: that of a suspended app, or one of
// another virtual desktop. Systems before Windows 8 have no such windows.
[[nodiscard]] bool IsCloaked(HWND window);

} // namespace fw
