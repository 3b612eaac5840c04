#pragma once

#include <string>

#include "launch/launch_item.h"

namespace korvane::launch {

// Makes a launch item of a file or folder: its name and icon are found out.
[[nodiscard]] CLaunchItem ItemFromFile(const std::wstring& path);

} // namespace korvane::launch
