#pragma once

#include <string>

#include "about/logic/version_text.h"
#include "settings/registry_backend.h"

namespace korvane::about {

// What Windows says about itself in the registry. A 32-bit program on a 64-bit Windows would be shown another place,
// but that edition does not run there.
[[nodiscard]] settings::RegistryStore WindowsValues();

// The name from the registry, the numbers from the system.
[[nodiscard]] WindowsIdentity ReadWindowsIdentity(const settings::ProfileStore& windowsValues = WindowsValues());

// Whom this Windows is licensed to, and so Korvane.
struct Licensee {
    std::wstring owner;
    std::wstring organization;
};
[[nodiscard]] Licensee ReadLicensee(const settings::ProfileStore& windowsValues = WindowsValues());

} // namespace korvane::about
