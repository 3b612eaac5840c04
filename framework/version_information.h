#pragma once

#include <string>
#include <string_view>

namespace fw {

// A text of a program's or library's version information, such as L"FileVersion", in the first of its languages that
// has it. Empty when there is none, or no such information.
[[nodiscard]] std::wstring VersionValue(const std::wstring& file, std::wstring_view name);

// What a program or library calls itself there.
[[nodiscard]] std::wstring FileDescription(const std::wstring& file);

} // namespace fw
