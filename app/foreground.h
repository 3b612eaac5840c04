#pragma once

#include <windows.h>

namespace korvane::app {

// Brings a window of another program, or of another copy of this one, to the foreground and restores it when minimised.
void BringToForeground(HWND window);

} // namespace korvane::app
