#include "framework/icons.h"

#include <shellapi.h>

#include <utility>

#include "res/image_ids.h"

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

void GiveProgramIcons(HWND window) {
    const auto style = static_cast<DWORD>(::GetWindowLongPtrW(window, GWL_STYLE));
    if ((style & WS_CHILD) != 0 || (style & WS_CAPTION) != WS_CAPTION) return;
    for (const WPARAM size : {ICON_SMALL, ICON_BIG})
        if (::SendMessageW(window, WM_GETICON, size, 0) != 0) return;
    static const UniqueIcon small = LoadResourceIcon(IDI_KORVANE, ::GetSystemMetrics(SM_CXSMICON));
    static const UniqueIcon big = LoadResourceIcon(IDI_KORVANE, ::GetSystemMetrics(SM_CXICON));
    for (const auto& [size, icon] : {std::pair{ICON_SMALL, small.Get()}, std::pair{ICON_BIG, big.Get()}})
        ::SendMessageW(window, WM_SETICON, static_cast<WPARAM>(size), reinterpret_cast<LPARAM>(icon));
}

} // namespace fw
