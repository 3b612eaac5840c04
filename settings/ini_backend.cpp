#include "settings/ini_backend.h"

#include <windows.h>

#include "base/format_text.h"
#include "base/text.h"
#include "settings/logic/nibble_codec.h"
#include "settings/logic/value_name.h"

namespace korvane::settings {
namespace {

// Characters, the terminating zero included.
constexpr DWORD kBufferSize = 4096;
// So much of a text is read when it is read whole; nobody types more.
constexpr DWORD kLargestBufferSize = 1 << 20;

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

// Calls a function that fills a buffer and says how much of it, with ever larger buffers up to `largest`, until it does
// not fill one to the end. Such functions leave that many characters of a full buffer free for the terminating zeros.
template <class Fill>
std::wstring Filled(Fill fill, DWORD largest, DWORD zeros) {
    std::wstring text;
    for (DWORD size = kBufferSize;; size *= 2) {
        text.resize(size);
        const DWORD length = fill(text.data(), size);
        if (length < size - zeros || size >= largest) {
            text.resize(length);
            return text;
        }
    }
}

} // namespace

IniFileStore::IniFileStore(std::wstring_view path, LongTexts longTexts)
    : path_{FullPath(path)}, longTexts_{longTexts} {}

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
    const std::wstring sectionName{section};
    const std::wstring valueName{name};
    std::wstring text = Filled(
        [&](wchar_t* buffer, DWORD size) {
            return ::GetPrivateProfileStringW(sectionName.c_str(), valueName.c_str(), kMissing, buffer, size,
                                              path_.c_str());
        },
        longTexts_ == LongTexts::kWhole ? kLargestBufferSize : kBufferSize, 1);
    return text == kMissing ? std::wstring{fallback} : text;
}

std::vector<std::wstring> IniFileStore::ValueNames(std::wstring_view section) const {
    if (path_.empty() || !IsUsableName(section)) return {};
    const std::wstring sectionName{section};
    // Without a name the function gives all names, each with its terminating zero.
    const std::wstring all = Filled(
        [&](wchar_t* buffer, DWORD size) {
            return ::GetPrivateProfileStringW(sectionName.c_str(), nullptr, L"", buffer, size, path_.c_str());
        },
        kLargestBufferSize, 2);
    std::vector<std::wstring> names;
    for (const std::wstring_view name : base::SplitText(all, L'\0')) names.emplace_back(name);
    return names;
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
