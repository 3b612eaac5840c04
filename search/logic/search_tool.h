#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "settings/logic/profile_store.h"
#include "settings/logic/setting_keys.h"

namespace korvane::search {

// The programs on the user's own machine that can do a search.
enum class SearchTool { kEverything = 0, kEmEditor = 1, kHidemaru = 2 };

inline constexpr std::array kSearchTools{SearchTool::kEverything, SearchTool::kEmEditor, SearchTool::kHidemaru};

// The name that the user knows it by.
[[nodiscard]] std::wstring_view ToolNameOf(SearchTool tool);

// The file name of its program, as the user is told when it cannot be found.
[[nodiscard]] std::wstring_view ProgramNameOf(SearchTool tool);

// The setting that holds the program's full path.
[[nodiscard]] const settings::TextSetting& PathSetting(SearchTool tool);

// The same for the options of a search with one of the editors.
[[nodiscard]] const settings::EditorSearchSettings& OptionsSetting(SearchTool editor);

// Where a tool's installer leaves word of it in the machine's registry.
struct InstallationTrace {
    std::wstring_view key;
    std::wstring_view value;
};
[[nodiscard]] const InstallationTrace& TraceOf(SearchTool tool);

// The path of the tool's program by what stands in the registry; empty when nothing does. Quotation marks in the value
// stay in the path, and so does everything else before its last backslash.
[[nodiscard]] std::wstring ToolPathFrom(SearchTool tool, std::wstring_view registryText);

// The stored path of the tool's program, if it was found.
[[nodiscard]] std::optional<std::wstring> ReadToolPath(const settings::ProfileStore& settings, SearchTool tool);

// The command line that starts a search with Everything: the search text goes in first, as it stands, then the path of
// the program, also where the search text itself asks for it.
[[nodiscard]] std::wstring EverythingCommandLine(std::wstring_view commandLine, std::wstring_view text,
                                                 std::wstring_view everythingPath);

} // namespace korvane::search
