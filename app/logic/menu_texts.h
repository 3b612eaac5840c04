#pragma once

#include <vector>

#include "res/ids.h"

namespace korvane::app {

// A menu item that older systems call by another name.
struct MenuTextChange {
    unsigned command;
    unsigned textId; // of the string table
    friend bool operator==(const MenuTextChange&, const MenuTextChange&) = default;
};

// What is to be renamed in the menus, whose resource has the newest names.
[[nodiscard]] inline std::vector<MenuTextChange> MenuTextChanges(bool windows7OrLater, bool windows8OrLater) {
    std::vector<MenuTextChange> changes;
    if (!windows8OrLater) changes.push_back({ID_SIGN_OUT, IDS_LOG_OFF_ITEM});
    if (!windows7OrLater) changes.push_back({ID_ENTRY_FIRST, IDS_SECURITY_CENTER_ITEM});
    return changes;
}

} // namespace korvane::app
