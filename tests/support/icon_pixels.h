#pragma once

#include <windows.h>

#include <vector>

#include "framework/handle.h"
#include "tests/support/canvas.h"

namespace korvane::test {

// An icon as it looks in its own size.
[[nodiscard]] inline std::vector<COLORREF> PixelsOf(HICON icon) {
    ICONINFO parts{};
    if (!::GetIconInfo(icon, &parts)) return {};
    const fw::UniqueBitmap colour{parts.hbmColor};
    const fw::UniqueBitmap mask{parts.hbmMask};
    BITMAP picture{};
    ::GetObjectW(colour.Get(), sizeof picture, &picture);
    const Canvas canvas{{picture.bmWidth, picture.bmHeight}};
    ::DrawIconEx(canvas.Dc(), 0, 0, icon, picture.bmWidth, picture.bmHeight, 0, nullptr, DI_NORMAL);
    return canvas.Pixels();
}

} // namespace korvane::test
