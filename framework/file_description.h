#pragma once

#include <string>

namespace fw {

// What a program or library calls itself in its version information, in the first of its languages that has a name.
// Empty when it has none, or no such information.
[[nodiscard]] std::wstring FileDescription(const std::wstring& file);

} // namespace fw
