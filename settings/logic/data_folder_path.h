#pragma once

#include <string>
#include <string_view>

namespace korvane::settings {

// Where Korvane keeps its files, with a backslash at the end, below the user's application-data folder.
[[nodiscard]] std::wstring DataFolderBelow(std::wstring_view applicationData);

// The files in that folder.
[[nodiscard]] std::wstring CommandFileIn(std::wstring_view dataFolder);
[[nodiscard]] std::wstring UserCommandFileIn(std::wstring_view dataFolder);
// What is kept of a file of the user's commands that has to give way: its name with ".bak" in place of ".dat".
[[nodiscard]] std::wstring CopyOfUserCommandFile(std::wstring_view userCommandFile);

} // namespace korvane::settings
