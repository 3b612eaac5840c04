#include "app/logic/menu_states.h"

#include "res/ids.h"

namespace korvane::app {

std::array<MenuItemState, kMenuItemsWithState> MenuStates(const MenuSituation& now) {
    // Only one bar may hide itself at an edge. One that does so already may always stop.
    const bool mayHide = now.autoHide || !now.otherAutoHideBarOnEdge;
    return {{
        {.command = ID_DESKTOP_BAR_MODE, .checked = now.desktopBarMode},
        {.command = ID_TOPMOST, .checked = !now.desktopBarMode && now.topmost, .enabled = !now.desktopBarMode},
        {.command = ID_AUTO_HIDE,
         .checked = now.desktopBarMode && now.autoHide,
         .enabled = now.desktopBarMode && mayHide},
        {.command = ID_MONITOR_CLIPBOARD, .checked = now.clipboardMonitored},
        {.command = ID_SCREEN_SAVER, .enabled = now.screenSaverThere},
    }};
}

} // namespace korvane::app
