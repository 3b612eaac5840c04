#pragma once

#include <string>
#include <string_view>

namespace korvane::launch {

// Parts of a path, by its spelling alone; the path may have any length and need not exist.

// What stands behind the last backslash, which may be a whole path; the root of a drive is its own name.
[[nodiscard]] std::wstring_view FileNameOf(std::wstring_view path);
// With its dot; empty when the file name has none.
[[nodiscard]] std::wstring_view ExtensionOf(std::wstring_view path);
// With the backslash at its end; empty when no folder is named.
[[nodiscard]] std::wstring_view FolderOf(std::wstring_view path);

// What is left of a path that is shortened in its middle as far as that goes: dots for all the folders.
[[nodiscard]] std::wstring ShortestPath(std::wstring_view path);

// Whether it is one of the programs that Windows starts by themselves: ".exe", ".com" and ".bat".
[[nodiscard]] bool IsProgramExtension(std::wstring_view extension);

[[nodiscard]] bool IsShortcut(std::wstring_view path);

// A path as it was meant when it was typed or pasted: without blanks around it and without the quotation marks that
// Explorer puts around a path that it copies.
[[nodiscard]] std::wstring TypedPath(std::wstring_view text);

} // namespace korvane::launch
