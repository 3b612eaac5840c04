#include "framework/windows_program.h"

#include <windows.h>

#include <array>
#include <optional>

#include "framework/system_library.h"

namespace fw {
namespace {

// Characters; what the shell takes is no longer.
using PathBuffer = std::array<wchar_t, MAX_PATH>;

std::optional<std::wstring> FoundIn(const std::wstring& folders, const std::wstring& name) {
    PathBuffer path{};
    if (folders.empty()) return std::nullopt;
    const DWORD length =
        ::SearchPathW(folders.c_str(), name.c_str(), nullptr, static_cast<DWORD>(path.size()), path.data(), nullptr);
    if (length == 0 || length >= path.size()) return std::nullopt;
    return std::wstring{path.data(), length};
}

std::wstring WindowsFolder() {
    PathBuffer folder{};
    const UINT length = ::GetSystemWindowsDirectoryW(folder.data(), static_cast<UINT>(folder.size()));
    return length < folder.size() ? std::wstring{folder.data(), length} : std::wstring{};
}

std::wstring SearchPath() {
    std::wstring path(::GetEnvironmentVariableW(L"PATH", nullptr, 0), L'\0');
    path.resize(::GetEnvironmentVariableW(L"PATH", path.data(), static_cast<DWORD>(path.size())));
    return path;
}

// Programs tell the shell here where they are.
std::optional<std::wstring> Registered(const std::wstring& name) {
    const std::wstring key = L"Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\" + name;
    for (const HKEY root : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE}) {
        PathBuffer value{};
        DWORD bytes = sizeof value;
        if (::RegGetValueW(root, key.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, value.data(), &bytes) != ERROR_SUCCESS)
            continue;
        std::wstring path{value.data()};
        std::erase(path, L'"');
        if (path.find(L'\\') != std::wstring::npos) return path;
    }
    return std::nullopt;
}

} // namespace

std::wstring WindowsProgram(const std::wstring& name) {
    if (name.empty() || name.find_first_of(L"\\/:") != std::wstring::npos) return name;
    const std::wstring systemFolder = SystemFolder();
    for (const std::wstring& folders : {systemFolder, WindowsFolder(), SearchPath()})
        if (auto path = FoundIn(folders, name)) return *path;
    return Registered(name).value_or(systemFolder + L'\\' + name);
}

} // namespace fw
