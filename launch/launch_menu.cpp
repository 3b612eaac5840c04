#include "launch/launch_menu.h"

#include <string>
#include <vector>

#include "framework/menu_rows.h"
#include "framework/string_table.h"
#include "launch/command_entries.h"
#include "launch/launch_item.h"
#include "launch/logic/launch_limits.h"
#include "launch/logic/launch_menu.h"
#include "res/ids.h"

namespace korvane::launch {
namespace {

// Within the main menu's pop-up.
constexpr int kLaunchMenuPosition = 5;

// The items are released as soon as their pictures are taken; an item that cannot be loaded ends the menu.
std::vector<std::wstring> AddIcons(CAppMenuBar& bar, const settings::ProfileStore& store) {
    std::vector<std::wstring> names;
    for (int index = MinLaunchItems; index < MaxLaunchItems; ++index) {
        CLaunchItem item;
        if (!item.Load(store, index, true)) break;
        bar.AddIcon(LaunchItemCommandId(index), item.Icon());
        names.push_back(item.Name());
    }
    return names;
}

} // namespace

HMENU LaunchPopup(const CAppMenuBar& bar) {
    return ::GetSubMenu(bar.Popup(POPUP_MAIN), kLaunchMenuPosition);
}

void BuildLaunchMenu(CAppMenuBar& bar, const settings::ProfileStore& store) {
    const HMENU popup = LaunchPopup(bar);
    for (UINT command = ID_LAUNCH_FIRST; command <= ID_LAUNCH_LAST; ++command) bar.RemoveImage(command);

    fw::FillMenu(popup, PlanLaunchMenu(AddIcons(bar, store), fw::LoadText(IDS_LAUNCH_SETTINGS)));
}

std::optional<INT_PTR> RunLaunchItem(UINT command, const settings::ProfileStore& store) {
    CLaunchItem item;
    if (!item.Load(store, LaunchItemIndex(command), false)) return std::nullopt;
    CommandEntry entry;
    entry.path = item.Path();
    entry.arguments = item.Arguments();
    entry.workingFolder = item.WorkingFolder();
    return RunCommandEntry(entry);
}

} // namespace korvane::launch
