#pragma once

#include <windows.h>

#include <cstddef>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "framework/handle.h"

namespace korvane::test {

// A value below HKEY_LOCAL_MACHINE for as long as the object lives. What stood there before comes back, and a key that
// was made for it goes.
class MachineValue {
public:
    MachineValue(std::wstring_view key, std::wstring_view name, DWORD type, std::span<const std::byte> data,
                 REGSAM view = 0)
        : path_{key}, name_{name}, view_{view} {
        HKEY opened = nullptr;
        DWORD disposition = 0;
        if (::RegCreateKeyExW(HKEY_LOCAL_MACHINE, path_.c_str(), 0, nullptr, 0, KEY_READ | KEY_WRITE | view_, nullptr,
                              &opened, &disposition) != ERROR_SUCCESS)
            throw std::runtime_error{"the machine's registry cannot be written"};
        key_.Reset(opened);
        created_ = disposition == REG_CREATED_NEW_KEY;
        if (DWORD size = 0;
            ::RegQueryValueExW(opened, name_.c_str(), nullptr, nullptr, nullptr, &size) == ERROR_SUCCESS) {
            before_.emplace(size);
            ::RegQueryValueExW(opened, name_.c_str(), nullptr, &typeBefore_, before_->data(), &size);
        }
        ::RegSetValueExW(opened, name_.c_str(), 0, type, reinterpret_cast<const BYTE*>(data.data()),
                         static_cast<DWORD>(data.size()));
    }
    // A text with its terminating zero.
    MachineValue(std::wstring_view key, std::wstring_view name, const std::wstring& text, DWORD type = REG_SZ,
                 REGSAM view = 0)
        : MachineValue{key, name, type, std::as_bytes(std::span{text.c_str(), text.size() + 1}), view} {}
    MachineValue(const MachineValue&) = delete;
    MachineValue& operator=(const MachineValue&) = delete;
    ~MachineValue() {
        if (before_)
            ::RegSetValueExW(key_.Get(), name_.c_str(), 0, typeBefore_, before_->data(),
                             static_cast<DWORD>(before_->size()));
        else
            ::RegDeleteValueW(key_.Get(), name_.c_str());
        // The empty name is the key itself.
        if (created_) ::RegDeleteKeyW(key_.Get(), L"");
    }

private:
    std::wstring path_;
    std::wstring name_;
    REGSAM view_;
    fw::UniqueKey key_;
    bool created_ = false;
    DWORD typeBefore_ = REG_NONE;
    std::optional<std::vector<BYTE>> before_;
};

} // namespace korvane::test
