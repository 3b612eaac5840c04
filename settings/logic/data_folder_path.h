#pragma once

#include <string>
#include <string_view>

namespace korvane::settings {

// Where Korvane keeps its files, with a backslash at the end, below the user's application-data folder.
[[nodiscard]] std::wstring DataFolderBelow(std::wstring_view applicationData);

// The files in that folder.
[[nodiscard]] std::wstring CommandFileIn(std::wstring_view dataFolder);
[[nodiscard]] std::wstring UserCommandFileIn(std::wstring_view dataFolder);

} // namespace korvane::settings
