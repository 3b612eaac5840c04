#pragma once

#include <array>

#include "res/ids.h"

namespace korvane::launch {

// The pages of the options, in the order of their tree.
enum class OptionPage { kMain = 0, kCommands = 1, kLaunch = 2 };

inline constexpr std::array kOptionPages{OptionPage::kMain, OptionPage::kCommands, OptionPage::kLaunch};

// A page's name in the tree, as an identifier of the string table.
[[nodiscard]] constexpr unsigned OptionPageName(OptionPage page) {
    constexpr std::array<unsigned, kOptionPages.size()> kNames{IDS_OPTIONS_MAIN, IDS_OPTIONS_COMMANDS,
                                                               IDS_OPTIONS_LAUNCH};
    return kNames[static_cast<std::size_t>(page)];
}

// The page that a command opens: each menu has a way to its own settings.
[[nodiscard]] constexpr OptionPage OptionPageOf(unsigned command) {
    switch (command) {
    case ID_SEARCH_SETTINGS:
        return OptionPage::kCommands;
    case ID_LAUNCH_SETTINGS:
        return OptionPage::kLaunch;
    default:
        return OptionPage::kMain;
    }
}

} // namespace korvane::launch
