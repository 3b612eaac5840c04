#include "framework/icons.h"

#include <shellapi.h>

namespace fw {

UniqueIcon ExtractSmallIcon(const std::wstring& file, int index) {
    HICON icon = nullptr;
    // The count of icons got; on failure it is 0 or UINT_MAX.
    if (::ExtractIconExW(file.c_str(), index, nullptr, &icon, 1) != 1) icon = nullptr;
    return UniqueIcon{icon};
}

UniqueIcon LoadResourceIcon(UINT id, int sizePx) {
    return UniqueIcon{static_cast<HICON>(
        ::LoadImageW(::GetModuleHandleW(nullptr), MAKEINTRESOURCEW(id), IMAGE_ICON, sizePx, sizePx, LR_DEFAULTCOLOR))};
}

} // namespace fw
