#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "settings/registry_backend.h"

namespace korvane::settings {

// The value that has Windows start Korvane when the user signs in. It is the only setting outside of Korvane's own key.
class AutoRun {
public:
    // `baseKey` is the key above "Run"; only tests name another.
    explicit AutoRun(HKEY root = HKEY_CURRENT_USER,
                     std::wstring_view baseKey = L"Software\\Microsoft\\Windows\\CurrentVersion")
        : store_{root, baseKey} {}

    // True when the value reads as anything but empty text, whatever program that names.
    [[nodiscard]] bool IsSet() const;

    // Writes the program's path as it stands, neither quoted nor followed by arguments. False when it is empty or
    // cannot be written.
    bool Set(std::wstring_view programPath);

    // Deletes the value, but only when it is set: an empty one is left alone. False when it cannot be deleted.
    bool Clear();

private:
    RegistryStore store_;
};

} // namespace korvane::settings
