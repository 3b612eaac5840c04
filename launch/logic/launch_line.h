#pragma once

#include <array>
#include <string>
#include <string_view>

namespace korvane::launch {

// The six fields of a stored line: path, arguments, working folder, icon file, icon index as text, name.
inline constexpr std::size_t kLineFields = 6;
using LineFields = std::array<std::wstring, kLineFields>;

// Splits "path,arguments,folder,icon file,icon index,name". There is no quoting: a run of commas counts as one, so an
// empty field makes those after it move forward; that is why an empty field is written as a single blank. Each field is
// trimmed, what follows the sixth is dropped, and missing fields stay empty.
[[nodiscard]] LineFields SplitLaunchLine(std::wstring_view line);

// False for a line that starts nothing.
[[nodiscard]] inline bool HasPath(std::wstring_view line) {
    return !SplitLaunchLine(line).front().empty();
}

// What a line is made of.
struct LaunchLineParts {
    std::wstring_view path;
    std::wstring_view arguments;
    std::wstring_view workingFolder;
    std::wstring_view iconFile;
    int iconIndex;
    std::wstring_view name;
};

// The opposite of SplitLaunchLine. Only arguments and working folder may be empty and are then written as a blank;
// path, icon file and name are written as they stand. A comma within a field is not protected: what follows it is lost.
[[nodiscard]] std::wstring FormatLaunchLine(const LaunchLineParts& parts);

} // namespace korvane::launch
