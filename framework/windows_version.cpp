#include "framework/windows_version.h"

#include <windows.h>

#include "framework/system_library.h"

namespace fw {

bool IsWindowsAtLeast(WindowsVersion version) {
    OSVERSIONINFOEXW wanted{};
    wanted.dwOSVersionInfoSize = sizeof wanted;
    wanted.dwMajorVersion = version.major;
    wanted.dwMinorVersion = version.minor;
    DWORDLONG conditions = 0;
    conditions = ::VerSetConditionMask(conditions, VER_MAJORVERSION, VER_GREATER_EQUAL);
    conditions = ::VerSetConditionMask(conditions, VER_MINORVERSION, VER_GREATER_EQUAL);
    conditions = ::VerSetConditionMask(conditions, VER_SERVICEPACKMAJOR, VER_GREATER_EQUAL);
    return ::VerifyVersionInfoW(&wanted, VER_MAJORVERSION | VER_MINORVERSION | VER_SERVICEPACKMAJOR, conditions) != 0;
}

bool IsWine() {
    // Every process has this library, and only Wine's exports this function.
    return FunctionOf<const char*()>(::GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

} // namespace fw
