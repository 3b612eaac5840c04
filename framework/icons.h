#pragma once

#include <string>
#include <vector>

#include "framework/handle.h"

namespace fw {

// The small icon number `index` of a program or library; a bare file name is looked up on the search path by the
// system. Empty when there is no such icon.
[[nodiscard]] UniqueIcon ExtractSmallIcon(const std::wstring& file, int index);

// All small icons of a program, library or icon file, in its order. One that cannot be got, for instance because the
// process has as many icons as it may have, is null. Empty when the file has none or is not there.
[[nodiscard]] std::vector<UniqueIcon> ExtractSmallIcons(const std::wstring& file);

// An icon of the program's own resources at the given size in pixels.
[[nodiscard]] UniqueIcon LoadResourceIcon(UINT id, int sizePx);

// Gives a window with a caption the program's icons, unless it has one of its own. They stay as long as the program.
void GiveProgramIcons(HWND window);

} // namespace fw
