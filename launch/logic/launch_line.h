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

} // namespace korvane::launch
