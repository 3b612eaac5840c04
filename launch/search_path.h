#pragma once

#include <string>

namespace korvane::launch {

// The full path of a file that is named without its folder and stands on the system's search path; anything else comes
// back as it is.
[[nodiscard]] std::wstring WithFolderFound(std::wstring file);

} // namespace korvane::launch
