#pragma once

#include <string>

#include "framework/handle.h"

namespace fw {

// The small icon number `index` of a program or library; a bare file name is looked up on the search path by the
// system. Empty when there is no such icon.
[[nodiscard]] UniqueIcon ExtractSmallIcon(const std::wstring& file, int index);

// An icon of the program's own resources at the given size in pixels.
[[nodiscard]] UniqueIcon LoadResourceIcon(UINT id, int sizePx);

} // namespace fw
