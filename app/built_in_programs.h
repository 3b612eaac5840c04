#pragma once

#include <windows.h>

#include <functional>
#include <optional>

#include "framework/handle.h"
#include "launch/command_entries.h"

namespace korvane::app {

// Starts an entry; gives the shell's result.
using EntryStarter = std::function<INT_PTR(const launch::CommandEntry& entry, int showCommand)>;

// What the commands from 3001 to 3007 start and show; empty for any other. A folder that Windows does not know stays
// empty.
[[nodiscard]] std::optional<launch::CommandEntry> BuiltInProgramEntry(UINT command);

// Starts a built-in program; gives the shell's result, which is an error code when it is 32 or less.
[[nodiscard]] INT_PTR RunBuiltInProgram(UINT command, const EntryStarter& start = &launch::RunCommandEntry);

// Empty when the program is not there or has no icon.
[[nodiscard]] fw::UniqueIcon BuiltInProgramIcon(UINT command);

} // namespace korvane::app
