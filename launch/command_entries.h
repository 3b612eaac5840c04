#pragma once

#include <windows.h>

#include <string>

#include "framework/handle.h"
#include "launch/logic/command_entry.h"
#include "settings/logic/profile_store.h"

namespace korvane::launch {

// The entry behind a command identifier from 4001 to 4027. The launch buttons (4025 and up) are read from the user's
// settings first; what is not there comes from the string table.
[[nodiscard]] CommandEntry LoadCommandEntry(UINT command, const settings::ProfileStore& store);

// What an entry starts, as the shell is told: a program of Windows by its full path, what the user has named as it
// stands.
[[nodiscard]] std::wstring ProgramOf(const CommandEntry& entry);

// The small icon of an entry; empty when it has none or it cannot be got.
[[nodiscard]] fw::UniqueIcon IconOf(const CommandEntry& entry);

// Starts an entry with the shell and shows its window so (SW_...); gives the shell's result, which is an error code
// when it is 32 or less.
[[nodiscard]] INT_PTR RunCommandEntry(const CommandEntry& entry, int showCommand = SW_SHOW);

// The folder that an entry's program or document lies in, looked for on the search path when none is named; empty when
// there is no such folder.
[[nodiscard]] std::wstring FolderOfEntry(const CommandEntry& entry);

} // namespace korvane::launch
