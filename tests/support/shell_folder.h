#pragma once

#include <windows.h>

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "framework/handle.h"

namespace korvane::test {

// Moves one of the shell's folders for as long as the object lives: "Programs" and "AppData" are the user's (HKCU),
// "Common Programs" is the machine's (HKLM).
class ShellFolder {
public:
    ShellFolder(HKEY root, std::wstring name, const std::wstring& path) : name_{std::move(name)} {
        HKEY key = nullptr;
        if (::RegCreateKeyExW(root, L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell Folders", 0,
                              nullptr, 0, KEY_READ | KEY_WRITE, nullptr, &key, nullptr) != ERROR_SUCCESS)
            throw std::runtime_error{"the shell's folders cannot be moved"};
        key_.Reset(key);
        if (DWORD size = 0; ::RegQueryValueExW(key, name_.c_str(), nullptr, nullptr, nullptr, &size) == ERROR_SUCCESS) {
            before_.emplace(size);
            ::RegQueryValueExW(key, name_.c_str(), nullptr, &typeBefore_, before_->data(), &size);
        }
        MoveTo(path);
    }
    ShellFolder(const ShellFolder&) = delete;
    ShellFolder& operator=(const ShellFolder&) = delete;
    ~ShellFolder() {
        if (before_)
            ::RegSetValueExW(key_.Get(), name_.c_str(), 0, typeBefore_, before_->data(),
                             static_cast<DWORD>(before_->size()));
        else
            ::RegDeleteValueW(key_.Get(), name_.c_str());
    }

    void MoveTo(const std::wstring& path) {
        ::RegSetValueExW(key_.Get(), name_.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(path.c_str()),
                         static_cast<DWORD>((path.size() + 1) * sizeof(wchar_t)));
    }

private:
    std::wstring name_;
    fw::UniqueKey key_;
    DWORD typeBefore_ = REG_NONE;
    std::optional<std::vector<BYTE>> before_;
};

} // namespace korvane::test
