#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "search/logic/search_commands.h"

namespace korvane::search {

// What the file of the user's commands is like.
enum class FileCondition {
    kNone,       // there is none, or none with anything to lose in it
    kGood,       // written by Korvane, and all of it was read
    kForeign,    // all commands were read, but there is more in it than Korvane writes
    kUnreadable, // it could not be read, or not all of its commands
};

struct UserCommandReading {
    FileCondition condition = FileCondition::kNone;
    std::vector<SearchCommand> commands;
};

// The file of the user's commands as a whole. Errors are Windows error codes, 0 for success.
class UserCommandFile {
public:
    virtual ~UserCommandFile() = default;

    // The commands come with all of their texts, however long these are.
    [[nodiscard]] virtual UserCommandReading Read() const = 0;
    // Keeps what the file holds now in a file of another name.
    [[nodiscard]] virtual unsigned long KeepCopy() = 0;
    // Replaces all commands. The file never holds anything but the old or the new ones.
    [[nodiscard]] virtual unsigned long Write(std::span<const SearchCommand> commands) = 0;
    // That there is no file is success.
    [[nodiscard]] virtual unsigned long Delete() = 0;
};

// The file's bytes: UTF-16 with a byte order mark, so that Windows' functions for INI files read it as Unicode; the
// header as it stands; and a section for each command, in order and numbered from 1, with an empty line behind it.
[[nodiscard]] std::string FormatUserCommands(std::wstring_view header, std::span<const SearchCommand> commands);

// What to make of a file in which so many commands were found.
[[nodiscard]] FileCondition JudgeUserCommands(std::string_view bytes, std::size_t commandsRead);

// A text in the form in which the INI syntax gives it back whole: on one line, and within a pair of quotation marks of
// its own when it begins or ends with what a reader takes away.
[[nodiscard]] std::wstring AsIniValue(std::wstring_view text);

} // namespace korvane::search
