#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "search/logic/process_starter.h"

namespace korvane::search {

// The command line that a typed text stands for. Control panel items (".cpl" anywhere, in small letters) are opened by
// the control panel; in capital letters they are run as they stand, which is on purpose.
[[nodiscard]] std::wstring CommandLineOfTyped(std::wstring_view text);

// A command line taken apart, as the shell wants it.
struct CommandParts {
    std::wstring program;
    std::wstring arguments;

    friend bool operator==(const CommandParts&, const CommandParts&) = default;
};

// Where a command line may be parted, in the order in which CreateProcess tries it: behind a name in quotation marks;
// otherwise behind the first word, behind the second and so on, for a path may have blanks.
[[nodiscard]] std::vector<CommandParts> PartingsOf(std::wstring_view line);

// What became of a typed command. With an error code there is something to be shown to the user, without one the text
// belongs into the history.
struct RunOutcome {
    unsigned long error = 0; // Windows error code

    [[nodiscard]] bool Started() const { return error == 0; }
    friend bool operator==(const RunOutcome&, const RunOutcome&) = default;
};

// Runs a typed text as a process or, where that cannot be, has the shell open it. A program that needs more rights than
// the user's is started by the shell with its arguments.
[[nodiscard]] RunOutcome RunTypedCommand(std::wstring_view text, ProcessStarter& starter);

// How a picked path goes into the box.
enum class PathEntry { kReplace, kAppend };

// What the box holds after a path was picked: the path alone, or the text that was there, one blank and the path, in
// quotation marks if it has blanks itself. Appending to an empty box is replacing.
[[nodiscard]] std::wstring WithPickedPath(std::wstring_view text, std::wstring_view path, PathEntry entry);

// A text for a box of one line: every line break becomes one blank, and those at the very end, which a copied line
// often brings along, are dropped.
[[nodiscard]] std::wstring OnOneLine(std::wstring_view text);

// As much of a text as `room` UTF-16 units hold, without half of a pair at the end.
[[nodiscard]] std::wstring_view WithinRoom(std::wstring_view text, std::size_t room);

} // namespace korvane::search
