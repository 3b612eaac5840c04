#include "tests/fake_shell/work_area.h"

#include <windows.h>

#include <array>
#include <string>
#include <vector>

#include "framework/handle.h"

namespace korvane::fake_shell {
namespace {

// Below each screen's device: a RECT, as the unnamed value.
constexpr wchar_t kScreens[] = L"System\\CurrentControlSet\\Enum\\DISPLAY";
constexpr wchar_t kWorkAreaProperty[] = L"Properties\\{233a9ef3-afc4-4abd-b564-c32f21f1535b}\\0004";
// Processes read their screens again once this key has changed.
constexpr wchar_t kDeviceMap[] = L"HARDWARE\\DEVICEMAP\\VIDEO";

fw::UniqueKey Open(const std::wstring& path, REGSAM access) {
    HKEY key = nullptr;
    ::RegOpenKeyExW(HKEY_LOCAL_MACHINE, path.c_str(), 0, access, &key);
    return fw::UniqueKey{key};
}

std::vector<std::wstring> SubkeysOf(const std::wstring& path) {
    std::vector<std::wstring> paths;
    const fw::UniqueKey key = Open(path, KEY_READ);
    for (DWORD index = 0; key; ++index) {
        std::array<wchar_t, 256> name{};
        DWORD length = static_cast<DWORD>(name.size());
        if (::RegEnumKeyExW(key.Get(), index, name.data(), &length, nullptr, nullptr, nullptr, nullptr) !=
            ERROR_SUCCESS)
            break;
        paths.push_back(path + L'\\' + name.data());
    }
    return paths;
}

bool WriteProperty(const std::wstring& device, const RECT& area) {
    const fw::UniqueKey key = Open(device + L'\\' + kWorkAreaProperty, KEY_READ | KEY_WRITE);
    // The type is one of the device properties' own, so what is there is kept.
    DWORD type = 0;
    if (!key || ::RegQueryValueExW(key.Get(), nullptr, nullptr, &type, nullptr, nullptr) != ERROR_SUCCESS) return false;
    return ::RegSetValueExW(key.Get(), nullptr, 0, type, reinterpret_cast<const BYTE*>(&area), sizeof area) ==
           ERROR_SUCCESS;
}

} // namespace

base::Rect WholeScreen() {
    return {0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)};
}

bool PublishWorkArea(const base::Rect& area) {
    const RECT rect{area.left, area.top, area.right, area.bottom};
    bool written = false;
    for (const std::wstring& screen : SubkeysOf(kScreens))
        for (const std::wstring& device : SubkeysOf(screen)) written = WriteProperty(device, rect) || written;

    const fw::UniqueKey map = Open(kDeviceMap, KEY_READ | KEY_WRITE);
    constexpr wchar_t kTouch[] = L"KorvaneTest";
    const DWORD now = ::GetTickCount();
    ::RegSetValueExW(map.Get(), kTouch, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&now), sizeof now);
    ::RegDeleteValueW(map.Get(), kTouch);
    return written;
}

} // namespace korvane::fake_shell
