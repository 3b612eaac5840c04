#pragma once

#include <span>

#include "search/logic/search_commands.h"
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

// The file of the user's commands as a whole. Its sections are written through a store. Errors are Windows error
// codes, 0 for success.
class UserCommandFile {
public:
    virtual ~UserCommandFile() = default;

    // Replaces the file by one without commands: byte order mark and header only.
    [[nodiscard]] virtual unsigned long Recreate() = 0;
    // Puts back what the last Recreate replaced, as far as that is possible.
    virtual void Restore() = 0;
    // That there is no file is success.
    [[nodiscard]] virtual unsigned long Delete() = 0;
};

// Writes the user's commands, numbered anew from 1 in list order, and which of them are selected. An empty list deletes
// the file and leaves the selection alone: its numbers have no command any more and so do not show. Gives the Windows
// error code to be shown to the user, 0 for success. When the commands cannot be written the old ones come back, and
// the old selection with them.
[[nodiscard]] unsigned long SaveUserCommands(std::span<const ListedCommand> list, UserCommandFile& file,
                                             settings::ProfileStore& userStore, settings::ProfileStore& settings);

// Writes the order of the standard commands and which of them are selected. False when either could not be written.
bool SaveStandardSelection(std::span<const ListedCommand> list, settings::ProfileStore& settings);

// A text in the form in which the INI syntax gives it back whole: on one line, and within a pair of quotation marks of
// its own when it begins or ends with what a reader takes away.
[[nodiscard]] std::wstring AsIniValue(std::wstring_view text);

} // namespace korvane::search
