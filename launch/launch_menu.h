#pragma once

#include <windows.h>

#include <optional>

#include "launch/app_menu_bar.h"
#include "settings/logic/profile_store.h"

namespace korvane::launch {

// The pop-up of the launch menu within the main menu; null while there is no menu.
[[nodiscard]] HMENU LaunchPopup(const CAppMenuBar& bar);

// Fills the launch menu with the items that stand in the settings now. The image of the settings entry is not touched.
void BuildLaunchMenu(CAppMenuBar& bar, const settings::ProfileStore& store);

// Starts the item behind a command of the launch menu, as it stands in the settings now. Gives the shell's result,
// which is an error code when it is 32 or less; nothing when there is no such item.
[[nodiscard]] std::optional<INT_PTR> RunLaunchItem(UINT command, const settings::ProfileStore& store);

} // namespace korvane::launch
