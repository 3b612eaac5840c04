#pragma once

#include <windows.h>

#include <shlobj.h>

#include <string>

#include "framework/unique_interface.h"

namespace korvane::launch {

// What a shortcut file says. Nobody asks its target. COM must be initialised on this thread. Empty when the file is no
// shortcut or cannot be read.
[[nodiscard]] fw::UniqueInterface<IShellLinkW> LoadShellLink(const std::wstring& file);

} // namespace korvane::launch
