#pragma once

#include <span>

#include "search/logic/search_commands.h"
#include "search/logic/user_commands.h"
#include "settings/logic/profile_store.h"

namespace korvane::search {

// Saving the search commands and their selection when the options are applied.

// A command as it stands in a list of the options.
struct ListedCommand {
    SearchCommand command;
    bool selected = false;
    // Tells it from all others of its list, also from those that are the same. Given by CommandLists.
    unsigned identity = 0;
};

// Saves the user's commands, numbered anew from 1 in list order, and which of them are selected. `loaded` is what the
// list was made from. While the list says the same the file is left alone, whatever has become of it. Otherwise a copy
// is kept first of a file that holds anything that the list was not made from. An empty list deletes the file and
// leaves the selection alone: its numbers have no command any more and so do not show.
// Gives the Windows error code to be shown to the user, 0 for success. When the commands cannot be written the old ones
// stay, and the old selection with them.
[[nodiscard]] unsigned long SaveUserCommands(std::span<const ListedCommand> list, const UserCommandReading& loaded,
                                             UserCommandFile& file, settings::ProfileStore& settings);

// Writes the order of the standard commands and which of them are selected. False when either could not be written.
bool SaveStandardSelection(std::span<const ListedCommand> list, settings::ProfileStore& settings);

} // namespace korvane::search
