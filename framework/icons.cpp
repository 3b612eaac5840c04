#include "framework/icons.h"

#include <shellapi.h>

namespace fw {

UniqueIcon ExtractSmallIcon(const std::wstring& file, int index) {
    HICON icon = nullptr;
    // The count of icons got; on failure it is 0 or UINT_MAX.
    if (::ExtractIconExW(file.c_str(), index, nullptr, &icon, 1) != 1) icon = nullptr;
    return UniqueIcon{icon};
}

std::vector<UniqueIcon> ExtractSmallIcons(const std::wstring& file) {
    constexpr int kCountThem = -1;
    const UINT count = ::ExtractIconExW(file.c_str(), kCountThem, nullptr, nullptr, 0);
    // A file has no more than 65,535 icons, for that many identifiers there are; on failure it is UINT_MAX.
    if (count == 0 || count > 0xFFFF) return {};
    std::vector<HICON> icons(count);
    ::ExtractIconExW(file.c_str(), 0, nullptr, icons.data(), count);
    return std::vector<UniqueIcon>(icons.begin(), icons.end());
}

UniqueIcon LoadResourceIcon(UINT id, int sizePx) {
    return UniqueIcon{static_cast<HICON>(
        ::LoadImageW(::GetModuleHandleW(nullptr), MAKEINTRESOURCEW(id), IMAGE_ICON, sizePx, sizePx, LR_DEFAULTCOLOR))};
}

} // namespace fw
