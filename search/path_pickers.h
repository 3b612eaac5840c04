#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <string_view>

namespace korvane::search {

struct FilePicker {
    std::wstring title;       // the system's own when it is empty
    std::wstring startFolder; // where to begin; the system decides when it is empty or no folder
};

// Lets the user pick an existing file. `filter` is a list of names and patterns such as "All files (*.*)|*.*||". Empty
// when the user cancels.
[[nodiscard]] std::optional<std::wstring> PickFile(HWND owner, std::wstring_view filter, const FilePicker& picker = {});

// Lets the user pick a folder of the file system, beginning with `start` when that is one. COM must be initialised on
// this thread. Empty when the user cancels.
[[nodiscard]] std::optional<std::wstring> PickFolder(HWND owner, const std::wstring& title, const std::wstring& prompt,
                                                     const std::wstring& start = {});

} // namespace korvane::search
