#include "framework/system_library.h"

#include <array>
#include <string>

namespace fw {

UniqueLibrary LoadSystemLibrary(std::wstring_view fileName) {
    std::array<wchar_t, MAX_PATH> folder{};
    const UINT length = ::GetSystemDirectoryW(folder.data(), static_cast<UINT>(folder.size()));
    if (length == 0 || length >= folder.size()) return {};
    std::wstring path{folder.data(), length};
    path.append(L"\\").append(fileName);
    return UniqueLibrary{::LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH)};
}

} // namespace fw
