#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <span>
#include <string>

#include "base/format_text.h"
#include "framework/handle.h"

namespace korvane::test {

// A key of the current user's registry that only this process uses; it is gone with all below it when the object dies.
class TempRegistryKey {
public:
    TempRegistryKey()
        : path_{
              base::FormatText(L"%s\\%u", std::wstring_view{kParent}, static_cast<unsigned>(::GetCurrentProcessId()))} {
        ::RegDeleteTreeW(kRoot, path_.c_str());
    }
    TempRegistryKey(const TempRegistryKey&) = delete;
    TempRegistryKey& operator=(const TempRegistryKey&) = delete;
    ~TempRegistryKey() {
        ::RegDeleteTreeW(kRoot, path_.c_str());
        // Fails, as it should, while another test process has its key there.
        ::RegDeleteKeyW(kRoot, kParent);
    }

    [[nodiscard]] HKEY Root() const { return kRoot; }
    // Below the root. The key itself is not created.
    [[nodiscard]] const std::wstring& Path() const { return path_; }

    [[nodiscard]] bool Exists(std::wstring_view subkey = {}) const {
        HKEY key = nullptr;
        const bool found = ::RegOpenKeyExW(kRoot, Below(subkey).c_str(), 0, KEY_READ, &key) == ERROR_SUCCESS;
        const fw::UniqueKey owner{found ? key : nullptr};
        return found;
    }

    // Writes a value as it is given, however wrong; creates the subkey.
    void SetRaw(std::wstring_view subkey, const wchar_t* name, DWORD type, std::span<const std::byte> data) const {
        HKEY key = nullptr;
        ASSERT_EQ(::RegCreateKeyExW(kRoot, Below(subkey).c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &key, nullptr),
                  ERROR_SUCCESS);
        const fw::UniqueKey owner{key};
        ASSERT_EQ(::RegSetValueExW(key, name, 0, type, reinterpret_cast<const BYTE*>(data.data()),
                                   static_cast<DWORD>(data.size())),
                  ERROR_SUCCESS);
    }

private:
    [[nodiscard]] std::wstring Below(std::wstring_view subkey) const {
        return subkey.empty() ? path_ : std::wstring{path_}.append(L"\\").append(subkey);
    }

    static constexpr wchar_t kParent[] = L"Software\\KorvaneTest";
    static inline const HKEY kRoot = HKEY_CURRENT_USER;
    std::wstring path_;
};

// For tests that need a place in the registry.
class RegistryTest : public ::testing::Test {
protected:
    TempRegistryKey key;
};

} // namespace korvane::test
