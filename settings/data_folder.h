#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace korvane::settings {

// Where the data folder is, or the thread's last error when Windows could not say.
struct DataFolder {
    std::optional<std::wstring> path; // ends in a backslash
    DWORD error = ERROR_SUCCESS;
};

// Asks Windows for the user's application-data folder. Neither it nor the data folder below it is created, nor need the
// latter exist.
[[nodiscard]] DataFolder FindDataFolder();

} // namespace korvane::settings
