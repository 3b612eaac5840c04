#pragma once

#include <optional>
#include <string>

namespace fw {

// The full path of this program. Empty when it has more than 260 characters, the terminating zero included: cut there,
// it would name another file.
[[nodiscard]] std::optional<std::wstring> ProgramPath();

} // namespace fw
