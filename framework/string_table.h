#pragma once

#include <windows.h>

#include <string>

#include "base/format_text.h"

namespace fw {

// A text of the program's string table; empty when there is none with that identifier.
[[nodiscard]] std::wstring LoadText(UINT id);

// The same, with its conversions filled in.
template <class... Arguments>
[[nodiscard]] std::wstring FormatResource(UINT id, const Arguments&... arguments) {
    return korvane::base::FormatText(LoadText(id), arguments...);
}

} // namespace fw
