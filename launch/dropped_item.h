#pragma once

#include <span>
#include <string>

#include "launch/launch_item.h"
#include "launch/logic/icon_lookup.h"

namespace korvane::launch {

// Makes a launch item of a file or folder, which need not exist any more: its name and icon are found out. It has an
// icon in any case, if need be this program's own, for an item without one would hide all items behind it.
[[nodiscard]] CLaunchItem ItemFromFile(const std::wstring& path);

// Gives an item the first of these icons that there is. False when there is none; the item has no icon then.
bool GiveFirstIcon(CLaunchItem& item, std::span<const IconLocation> icons);

} // namespace korvane::launch
