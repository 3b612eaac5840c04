#pragma once

#include <array>
#include <optional>

#include "res/ids.h"

namespace korvane::app {

// Where a command goes. Commands arrive from menus, accelerators, buttons and the boxes alike.
enum class Route {
    kRunTyped,
    kRunSearch,
    kOpenHistory,
    kOpenMenuButton,
    kPressHistoryButton,
    kBrowseFile,
    kBrowseFolder,
    kOpenOptions,
    kOpenCalendar,
    kRunEntry,
    kRunProgram,
    kRunLaunchItem,
    kEndSession,
    kSwitchTask,
    kChooseSearch,
    kToggleMode,
    kToggleTopmost,
    kToggleAutoHide,
    kToggleClipboardMonitor,
    kOpenSupport,
    kStartScreenSaver,
    kAbout,
    kExit,
    kHelp,
};

struct CommandRange {
    unsigned first;
    unsigned last;
    Route route;
};

// clang-format off
inline constexpr std::array kCommandRanges{
    CommandRange{ID_COMMAND_HISTORY,      ID_SEARCH_HISTORY,       Route::kOpenHistory},
    CommandRange{ID_RUN_TYPED,            ID_RUN_TYPED,            Route::kRunTyped},
    CommandRange{ID_RUN_SEARCH,           ID_RUN_SEARCH,           Route::kRunSearch},
    CommandRange{ID_OPTIONS,              ID_OPTIONS,              Route::kOpenOptions},
    CommandRange{ID_OPEN_MAIN_MENU,       ID_OPEN_MAIN_MENU,       Route::kOpenMenuButton},
    CommandRange{ID_OPEN_COMMAND_HISTORY, ID_OPEN_SEARCH_HISTORY,  Route::kPressHistoryButton},
    CommandRange{ID_OPEN_SEARCH_CHOOSER,  ID_OPEN_SEARCH_CHOOSER,  Route::kOpenMenuButton},
    CommandRange{ID_CLOCK,                ID_CLOCK,                Route::kOpenCalendar},
    CommandRange{ID_BROWSE_FILE,          ID_BROWSE_FILE,          Route::kBrowseFile},
    CommandRange{ID_BROWSE_FOLDER,        ID_BROWSE_FOLDER,        Route::kBrowseFolder},
    CommandRange{ID_PROGRAM_FIRST,        ID_PROGRAM_LAST,         Route::kRunProgram},
    CommandRange{ID_OPEN_CONTROL_PANEL,   ID_OPEN_CONTROL_PANEL,   Route::kOpenMenuButton},
    CommandRange{ID_ENTRY_FIRST,          ID_ENTRY_LAST,           Route::kRunEntry},
    CommandRange{ID_LAUNCH_FIRST,         ID_LAUNCH_LAST,          Route::kRunLaunchItem},
    CommandRange{ID_LAUNCH_SETTINGS,      ID_LAUNCH_SETTINGS,      Route::kOpenOptions},
    CommandRange{ID_SIGN_OUT,             ID_RESTART,              Route::kEndSession},
    CommandRange{ID_TASK_FIRST,           ID_TASK_LAST,            Route::kSwitchTask},
    CommandRange{ID_SEARCH_SETTINGS,      ID_SEARCH_SETTINGS,      Route::kOpenOptions},
    CommandRange{ID_SEARCH_FIRST,         ID_SEARCH_LAST,          Route::kChooseSearch},
    CommandRange{ID_DESKTOP_BAR_MODE,     ID_DESKTOP_BAR_MODE,     Route::kToggleMode},
    CommandRange{ID_TOPMOST,              ID_TOPMOST,              Route::kToggleTopmost},
    CommandRange{ID_AUTO_HIDE,            ID_AUTO_HIDE,            Route::kToggleAutoHide},
    CommandRange{ID_MONITOR_CLIPBOARD,    ID_MONITOR_CLIPBOARD,    Route::kToggleClipboardMonitor},
    CommandRange{ID_ONLINE_DOCUMENTS,     ID_AUTHOR_SITE,          Route::kOpenSupport},
    CommandRange{ID_SCREEN_SAVER,         ID_SCREEN_SAVER,         Route::kStartScreenSaver},
    CommandRange{ID_ABOUT,                ID_ABOUT,                Route::kAbout},
    CommandRange{ID_EXIT,                 ID_EXIT,                 Route::kExit},
    CommandRange{ID_HELP_CONTENTS,        ID_HELP_CONTENTS,        Route::kHelp},
};
// clang-format on

consteval bool Ascending(const auto& ranges) {
    for (std::size_t i = 0; i < ranges.size(); ++i) {
        if (ranges[i].first > ranges[i].last) return false;
        if (i > 0 && ranges[i].first <= ranges[i - 1].last) return false;
    }
    return true;
}
static_assert(Ascending(kCommandRanges));

// Empty for a command that this edition does not know: it is ignored.
[[nodiscard]] constexpr std::optional<Route> RouteOf(unsigned command) {
    for (const CommandRange& range : kCommandRanges)
        if (command >= range.first && command <= range.last) return range.route;
    return std::nullopt;
}

// The button whose menu a keyboard command opens.
[[nodiscard]] constexpr unsigned MenuButtonOf(unsigned command) {
    switch (command) {
    case ID_OPEN_SEARCH_CHOOSER:
        return ID_SEARCH_CHOOSER;
    case ID_OPEN_CONTROL_PANEL:
        return ID_CONTROL_PANEL;
    default:
        return ID_MAIN_MENU;
    }
}

// The keyboard's command for a history is the drop button's own plus this.
inline constexpr unsigned kHistoryKeyOffset = ID_OPEN_COMMAND_HISTORY - ID_COMMAND_HISTORY;
static_assert(kHistoryKeyOffset == 8 && ID_OPEN_SEARCH_HISTORY - ID_SEARCH_HISTORY == kHistoryKeyOffset);

} // namespace korvane::app
