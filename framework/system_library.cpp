#include "framework/system_library.h"

#include <array>

namespace fw {

std::wstring SystemFolder() {
    std::array<wchar_t, MAX_PATH> folder{};
    const UINT length = ::GetSystemDirectoryW(folder.data(), static_cast<UINT>(folder.size()));
    return length < folder.size() ? std::wstring{folder.data(), length} : std::wstring{};
}

UniqueLibrary LoadSystemLibrary(std::wstring_view fileName) {
    std::wstring path = SystemFolder();
    if (path.empty()) return {};
    path.append(L"\\").append(fileName);
    return UniqueLibrary{::LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH)};
}

void TakeLibrariesFromSystemFolder() {
    using SetDefaultFolders = BOOL WINAPI(DWORD);
    constexpr DWORD kSystemFolderOnly = 0x800; // LOAD_LIBRARY_SEARCH_SYSTEM32
    auto* const setDefault =
        FunctionOf<SetDefaultFolders>(::GetModuleHandleW(L"kernel32.dll"), "SetDefaultDllDirectories");
    // Where Windows 7 and Vista lack an update, at least not from the current folder.
    if (!setDefault || !setDefault(kSystemFolderOnly)) ::SetDllDirectoryW(L"");
}

} // namespace fw
