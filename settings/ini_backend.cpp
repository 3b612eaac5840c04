#include "settings/ini_backend.h"

#include <windows.h>

#include "base/format_text.h"
#include "settings/logic/nibble_codec.h"
#include "settings/logic/value_name.h"

namespace korvane::settings {
namespace {

// Characters, the terminating zero included.
constexpr DWORD kBufferSize = 4096;

// Handed over as the default, so that a missing value can be told from an empty one. It is not a character of any text.
constexpr wchar_t kMissing[] = L"\xFFFF";

std::wstring FullPath(std::wstring_view path) {
    if (!IsUsableName(path)) return {};
    const std::wstring given{path};
    const DWORD size = ::GetFullPathNameW(given.c_str(), 0, nullptr, nullptr);
    std::wstring full(size, L'\0');
    const DWORD length = ::GetFullPathNameW(given.c_str(), size, full.data(), nullptr);
    full.resize(length < size ? length : 0);
    return full;
}

} // namespace

IniFileStore::IniFileStore(std::wstring_view path) : path_{FullPath(path)} {}

bool IniFileStore::FileExists() const {
    return ::GetFileAttributesW(path_.c_str()) != INVALID_FILE_ATTRIBUTES;
}

int IniFileStore::ReadInt(std::wstring_view section, std::wstring_view name, int fallback) const {
    if (path_.empty() || !IsUsableName(section) || !IsUsableName(name)) return fallback;
    return static_cast<int>(
        ::GetPrivateProfileIntW(std::wstring{section}.c_str(), std::wstring{name}.c_str(), fallback, path_.c_str()));
}

std::wstring IniFileStore::ReadText(std::wstring_view section, std::wstring_view name,
                                    std::wstring_view fallback) const {
    if (path_.empty() || !IsUsableName(section) || !IsUsableName(name)) return std::wstring{fallback};
    std::wstring text(kBufferSize, L'\0');
    const DWORD length = ::GetPrivateProfileStringW(std::wstring{section}.c_str(), std::wstring{name}.c_str(), kMissing,
                                                    text.data(), kBufferSize, path_.c_str());
    text.resize(length);
    return text == kMissing ? std::wstring{fallback} : text;
}

std::optional<std::vector<std::byte>> IniFileStore::ReadBinary(std::wstring_view section,
                                                               std::wstring_view name) const {
    auto bytes = DecodeNibbles(ReadText(section, name));
    if (bytes && bytes->empty()) bytes.reset();
    return bytes;
}

bool IniFileStore::WriteInt(std::wstring_view section, std::wstring_view name, int value) {
    return WriteText(section, name, base::FormatText(L"%d", value));
}

bool IniFileStore::WriteText(std::wstring_view section, std::wstring_view name, std::wstring_view text) {
    if (path_.empty() || !IsUsableName(section) || !IsUsableName(name)) return false;
    return ::WritePrivateProfileStringW(std::wstring{section}.c_str(), std::wstring{name}.c_str(),
                                        std::wstring{text}.c_str(), path_.c_str()) != 0;
}

bool IniFileStore::WriteBinary(std::wstring_view section, std::wstring_view name, std::span<const std::byte> bytes) {
    return WriteText(section, name, EncodeNibbles(bytes));
}

bool IniFileStore::DeleteValue(std::wstring_view section, std::wstring_view name) {
    if (path_.empty() || !IsUsableName(section) || !IsUsableName(name)) return false;
    // Even a deletion would create the file.
    if (!FileExists()) return true;
    return ::WritePrivateProfileStringW(std::wstring{section}.c_str(), std::wstring{name}.c_str(), nullptr,
                                        path_.c_str()) != 0;
}

bool IniFileStore::DeleteSection(std::wstring_view section) {
    if (path_.empty() || !IsUsableName(section)) return false;
    if (!FileExists()) return true;
    return ::WritePrivateProfileStringW(std::wstring{section}.c_str(), nullptr, nullptr, path_.c_str()) != 0;
}

} // namespace korvane::settings
