#pragma once

#include <windows.h>

#include "about/help_opener.h"
#include "settings/logic/profile_store.h"

namespace korvane::launch {

enum class EditOutcome {
    kSaved,
    kCancelled, // or nothing could be written
    kNotListed, // there is no such item, or it cannot be loaded
};

// Lets the user edit the item at an index of the stored list, and stores what became of it. The icon (borrowed) is the
// editor's.
[[nodiscard]] EditOutcome EditStoredItem(HWND owner, settings::ProfileStore& store, int index, HICON smallIcon,
                                         about::HelpOpener& help);

} // namespace korvane::launch
