#include "about/windows_values.h"

#include <windows.h>

namespace korvane::about {
namespace {

constexpr const wchar_t* kSection = L"CurrentVersion";

} // namespace

settings::RegistryStore WindowsValues() {
    return {HKEY_LOCAL_MACHINE, L"SOFTWARE\\Microsoft\\Windows NT"};
}

WindowsIdentity ReadWindowsIdentity(const settings::ProfileStore& windowsValues) {
    OSVERSIONINFOW version{};
    version.dwOSVersionInfoSize = sizeof version;
    ::GetVersionExW(&version);
    return {windowsValues.ReadText(kSection, L"ProductName", {}), static_cast<int>(version.dwMajorVersion),
            static_cast<int>(version.dwMinorVersion), static_cast<int>(version.dwBuildNumber)};
}

Licensee ReadLicensee(const settings::ProfileStore& windowsValues) {
    return {windowsValues.ReadText(kSection, L"RegisteredOwner", {}),
            windowsValues.ReadText(kSection, L"RegisteredOrganization", {})};
}

} // namespace korvane::about
