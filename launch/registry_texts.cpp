#include "launch/registry_texts.h"

#include <windows.h>

namespace korvane::launch {
namespace {

HKEY KeyOf(RegistryTexts::Root root) {
    switch (root) {
    case RegistryTexts::Root::kClasses:
        return HKEY_CLASSES_ROOT;
    case RegistryTexts::Root::kUser:
        return HKEY_CURRENT_USER;
    case RegistryTexts::Root::kMachine:
        break;
    }
    return HKEY_LOCAL_MACHINE;
}

} // namespace

std::wstring WithVariablesReplaced(const std::wstring& text) {
    std::wstring expanded(::ExpandEnvironmentStringsW(text.c_str(), nullptr, 0), L'\0');
    const DWORD length =
        ::ExpandEnvironmentStringsW(text.c_str(), expanded.data(), static_cast<DWORD>(expanded.size()));
    // Both lengths count the terminating zero.
    if (length == 0 || length > expanded.size()) return text;
    expanded.resize(length - 1);
    return expanded;
}

std::wstring WinRegistryTexts::Text(Root root, const std::wstring& key, const std::wstring& name) const {
    // Types whose icon stands in the system's folder often say so in a plain text, so both kinds are expanded here.
    constexpr DWORD kTexts = RRF_RT_REG_SZ | RRF_RT_REG_EXPAND_SZ | RRF_NOEXPAND;
    std::wstring text;
    DWORD bytes = 0;
    LSTATUS status = ::RegGetValueW(KeyOf(root), key.c_str(), name.c_str(), kTexts, nullptr, nullptr, &bytes);
    constexpr DWORD kUnitBytes = sizeof(wchar_t);
    // The size may have grown since it was asked.
    constexpr int kAttempts = 3;
    for (int attempt = 0; attempt < kAttempts && (status == ERROR_SUCCESS || status == ERROR_MORE_DATA); ++attempt) {
        text.assign(bytes / kUnitBytes + 1, L'\0');
        bytes = static_cast<DWORD>(text.size()) * kUnitBytes;
        status = ::RegGetValueW(KeyOf(root), key.c_str(), name.c_str(), kTexts, nullptr, text.data(), &bytes);
        if (status == ERROR_SUCCESS) {
            text.resize(text.find(L'\0'));
            return text.empty() ? text : WithVariablesReplaced(text);
        }
    }
    return {};
}

} // namespace korvane::launch
