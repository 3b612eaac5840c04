#pragma once

#include <string>
#include <string_view>

#include "settings/logic/profile_store.h"

namespace korvane::search {

// The programs on the user's own machine that can do a search.
enum class SearchTool { kEverything = 0, kEmEditor = 1, kHidemaru = 2 };

// The file name of its program, as the user is told when it cannot be found.
[[nodiscard]] std::wstring_view ProgramNameOf(SearchTool tool);

// The setting that holds the program's full path.
[[nodiscard]] const settings::TextSetting& PathSetting(SearchTool tool);

// The command line that starts a search with Everything: the search text goes in first, as it stands, then the path of
// the program, also where the search text itself asks for it.
[[nodiscard]] std::wstring EverythingCommandLine(std::wstring_view commandLine, std::wstring_view text,
                                                 std::wstring_view everythingPath);

} // namespace korvane::search
