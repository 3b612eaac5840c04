#include "launch/search_path.h"

#include <windows.h>

#include <shlwapi.h>

#include <array>

namespace korvane::launch {

std::wstring WithFolderFound(std::wstring file) {
    // The function takes a buffer of this size and no other.
    std::array<wchar_t, MAX_PATH> path{};
    if (file.empty() || file.size() >= path.size() || file.find(L'\\') != std::wstring::npos) return file;
    file.copy(path.data(), file.size());
    if (::PathFindOnPathW(path.data(), nullptr)) file = path.data();
    return file;
}

} // namespace korvane::launch
