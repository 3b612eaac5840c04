#include "settings/registry_backend.h"

#include <cstring>

#include "framework/handle.h"
#include "settings/logic/value_name.h"

namespace korvane::settings {
namespace {

fw::UniqueKey OpenKey(HKEY root, const std::wstring& path, REGSAM access, LSTATUS& status) {
    HKEY key = nullptr;
    status = ::RegOpenKeyExW(root, path.c_str(), 0, access, &key);
    return fw::UniqueKey{status == ERROR_SUCCESS ? key : nullptr};
}

fw::UniqueKey OpenOrCreate(HKEY root, const std::wstring& path, REGSAM access) {
    HKEY key = nullptr;
    if (::RegCreateKeyExW(root, path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE, access, nullptr, &key, nullptr) !=
        ERROR_SUCCESS)
        return {};
    return fw::UniqueKey{key};
}

std::wstring Expanded(const std::wstring& text) {
    std::wstring expanded(::ExpandEnvironmentStringsW(text.c_str(), nullptr, 0), L'\0');
    const DWORD length =
        ::ExpandEnvironmentStringsW(text.c_str(), expanded.data(), static_cast<DWORD>(expanded.size()));
    // Both lengths count the terminating zero.
    if (length == 0 || length > expanded.size()) return text;
    expanded.resize(length - 1);
    return expanded;
}

// What is to be deleted and is not there counts as deleted.
bool IsGone(LSTATUS status) {
    return status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND;
}

} // namespace

std::wstring RegistryStore::PathOf(std::wstring_view section) const {
    std::wstring path{baseKey_};
    // The registry takes no path that begins with a backslash.
    if (!path.empty()) path += L'\\';
    return path += section;
}

REGSAM RegistryStore::Rights(REGSAM rights) const {
    return access_.view == RegistryView::k32Bit ? rights | KEY_WOW64_32KEY : rights;
}

std::optional<RegistryStore::RawValue> RegistryStore::Query(std::wstring_view section, std::wstring_view name) const {
    if (!IsUsableName(section) || !IsUsableName(name)) return std::nullopt;
    LSTATUS status = ERROR_SUCCESS;
    const fw::UniqueKey key = OpenKey(root_, PathOf(section), Rights(KEY_READ), status);
    if (!key) return std::nullopt;

    const std::wstring valueName{name};
    RawValue value{};
    DWORD size = 0;
    status = ::RegQueryValueExW(key.Get(), valueName.c_str(), nullptr, nullptr, nullptr, &size);
    while (status == ERROR_SUCCESS) {
        value.data.resize(size);
        // A null buffer would ask for the size again, so even an empty value is read into something.
        std::byte none{};
        auto* const buffer = reinterpret_cast<BYTE*>(size != 0 ? value.data.data() : &none);
        status = ::RegQueryValueExW(key.Get(), valueName.c_str(), nullptr, &value.type, buffer, &size);
        if (status == ERROR_SUCCESS) {
            value.data.resize(size);
            return value;
        }
        // Another process may have written a longer value since its size was asked; the new size is in `size`.
        if (status == ERROR_MORE_DATA) status = ERROR_SUCCESS;
    }
    return std::nullopt;
}

int RegistryStore::ReadInt(std::wstring_view section, std::wstring_view name, int fallback) const {
    const auto value = Query(section, name);
    DWORD number = 0;
    if (!value || value->type != REG_DWORD || value->data.size() != sizeof number) return fallback;
    std::memcpy(&number, value->data.data(), sizeof number);
    return static_cast<int>(number);
}

std::wstring RegistryStore::ReadText(std::wstring_view section, std::wstring_view name,
                                     std::wstring_view fallback) const {
    const auto value = Query(section, name);
    if (!value || (value->type != REG_SZ && value->type != REG_EXPAND_SZ)) return std::wstring{fallback};
    // Nothing makes a writer end the text with a zero or give it an even number of bytes.
    std::wstring text(value->data.size() / sizeof(wchar_t), L'\0');
    std::memcpy(text.data(), value->data.data(), text.size() * sizeof(wchar_t));
    text.resize(UpToZero(text).size());
    return access_.expandTexts && value->type == REG_EXPAND_SZ ? Expanded(text) : text;
}

std::optional<std::vector<std::byte>> RegistryStore::ReadBinary(std::wstring_view section,
                                                                std::wstring_view name) const {
    auto value = Query(section, name);
    if (!value || value->type != REG_BINARY || value->data.empty()) return std::nullopt;
    return std::move(value->data);
}

std::vector<std::wstring> RegistryStore::ValueNames(std::wstring_view section) const {
    std::vector<std::wstring> names;
    if (!IsUsableName(section)) return names;
    LSTATUS status = ERROR_SUCCESS;
    const fw::UniqueKey key = OpenKey(root_, PathOf(section), Rights(KEY_READ), status);
    if (!key) return names;
    // Characters; the longest name that the registry takes, and its terminating zero.
    constexpr DWORD kLongestName = 16'383 + 1;
    std::wstring name(kLongestName, L'\0');
    for (DWORD index = 0;; ++index) {
        DWORD length = kLongestName;
        status = ::RegEnumValueW(key.Get(), index, name.data(), &length, nullptr, nullptr, nullptr, nullptr);
        if (status != ERROR_SUCCESS) return names;
        // The value without a name is none of a store's.
        if (length != 0) names.emplace_back(name, 0, length);
    }
}

bool RegistryStore::Set(std::wstring_view section, std::wstring_view name, DWORD type,
                        std::span<const std::byte> data) {
    if (!IsUsableName(section) || !IsUsableName(name)) return false;
    const fw::UniqueKey key = OpenOrCreate(root_, PathOf(section), Rights(KEY_WRITE));
    return key &&
           ::RegSetValueExW(key.Get(), std::wstring{name}.c_str(), 0, type, reinterpret_cast<const BYTE*>(data.data()),
                            static_cast<DWORD>(data.size())) == ERROR_SUCCESS;
}

bool RegistryStore::WriteInt(std::wstring_view section, std::wstring_view name, int value) {
    const auto number = static_cast<DWORD>(value);
    return Set(section, name, REG_DWORD, std::as_bytes(std::span{&number, 1}));
}

bool RegistryStore::WriteText(std::wstring_view section, std::wstring_view name, std::wstring_view text) {
    const std::wstring stored{UpToZero(text)};
    // The terminating zero is stored as well.
    return Set(section, name, REG_SZ, std::as_bytes(std::span{stored.c_str(), stored.size() + 1}));
}

bool RegistryStore::WriteBinary(std::wstring_view section, std::wstring_view name, std::span<const std::byte> bytes) {
    return Set(section, name, REG_BINARY, bytes);
}

bool RegistryStore::DeleteValue(std::wstring_view section, std::wstring_view name) {
    if (!IsUsableName(section) || !IsUsableName(name)) return false;
    LSTATUS status = ERROR_SUCCESS;
    const fw::UniqueKey key = OpenKey(root_, PathOf(section), Rights(KEY_WRITE), status);
    if (key) status = ::RegDeleteValueW(key.Get(), std::wstring{name}.c_str());
    return IsGone(status);
}

bool RegistryStore::DeleteSection(std::wstring_view section) {
    // An empty section, or one that ends in a backslash, would name the key above it.
    if (!IsUsableName(section) || section.back() == L'\\') return false;
    const std::wstring path = PathOf(section);
    const std::size_t cut = path.rfind(L'\\');
    const bool hasParent = cut != std::wstring::npos;
    const std::wstring parent = hasParent ? path.substr(0, cut) : std::wstring{};
    const std::wstring leaf = hasParent ? path.substr(cut + 1) : path;

    LSTATUS status = ERROR_SUCCESS;
    const fw::UniqueKey key = OpenKey(root_, parent, Rights(KEY_WRITE), status);
    if (key) status = ::RegDeleteKeyW(key.Get(), leaf.c_str());
    return IsGone(status);
}

} // namespace korvane::settings
