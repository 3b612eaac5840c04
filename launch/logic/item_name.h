#pragma once

#include <string>
#include <string_view>

namespace korvane::launch {

// What an item made of a file is called: as its description says, or else as the file. A shortcut is called as Explorer
// calls it, without its extension. An ampersand, which would underline the letter behind it in the menu, becomes the
// wide one.
[[nodiscard]] std::wstring ItemNameFor(std::wstring_view path, std::wstring_view description, bool isFile);

} // namespace korvane::launch
