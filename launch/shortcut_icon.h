#pragma once

#include <string>

#include "launch/logic/icon_lookup.h"

namespace korvane::launch {

// What a shortcut file says of its icon, as it stands there: its target is neither searched for nor asked. COM must be
// initialised on this thread. Empty when the file is no shortcut or cannot be read.
[[nodiscard]] ShortcutIcon ReadShortcutIcon(const std::wstring& file);

} // namespace korvane::launch
