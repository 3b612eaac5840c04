#pragma once

#include <string>
#include <string_view>

namespace korvane::search {

// A folder's path, ready for a file name behind it.
[[nodiscard]] inline std::wstring WithBackslash(std::wstring_view folder) {
    std::wstring path{folder};
    if (!path.ends_with(L'\\')) path += L'\\';
    return path;
}

} // namespace korvane::search
