#pragma once

#include <string>

#include "about/windows_values.h"

namespace korvane::about {

// The version of a program's file as its version information has it; empty when it has none.
[[nodiscard]] std::wstring FileVersionOf(const std::wstring& file);

// The version text of the running program. It reads the program's file, so it is built once and kept.
[[nodiscard]] std::wstring ReadVersionText(const settings::ProfileStore& windowsValues = WindowsValues());

} // namespace korvane::about
