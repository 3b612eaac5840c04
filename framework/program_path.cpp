#include "framework/program_path.h"

#include <windows.h>

#include <array>

namespace fw {

std::optional<std::wstring> ProgramPath() {
    std::array<wchar_t, MAX_PATH> path{};
    const DWORD length = ::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    if (length == 0 || length >= path.size()) return std::nullopt;
    return std::wstring{path.data(), length};
}

} // namespace fw
