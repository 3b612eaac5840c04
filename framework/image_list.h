#pragma once

#include <windows.h>

#include <commctrl.h>

#include <initializer_list>

#include "framework/handle.h"

namespace fw {

using UniqueImageList = UniqueHandle<HIMAGELIST, &::ImageList_Destroy>;

// A list of the program's own icons at the given size in pixels, in the given order. A missing icon leaves its place
// empty, so that the indexes of the others stay right.
[[nodiscard]] UniqueImageList MakeImageList(std::initializer_list<UINT> iconIds, int sizePx);

} // namespace fw
