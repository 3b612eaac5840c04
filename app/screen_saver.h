#pragma once

#include <windows.h>

#include <string_view>

namespace korvane::app {

// True when the user has chosen a screen saver. `baseKey` is the key above "Desktop"; only tests name another.
[[nodiscard]] bool HasScreenSaver(HKEY root = HKEY_CURRENT_USER, std::wstring_view baseKey = L"Control Panel");

// Has Windows start it, by way of the desktop's window; nothing happens when there is none.
void StartScreenSaver(HWND desktop = ::GetDesktopWindow());

} // namespace korvane::app
