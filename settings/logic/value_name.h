#pragma once

#include <string_view>

namespace korvane::settings {

// Windows takes zero-terminated text, and gives a null or empty name a meaning of its own: the default value of a key,
// or a whole section. No store lets such a name through.
[[nodiscard]] constexpr bool IsUsableName(std::wstring_view name) {
    return !name.empty() && name.find(L'\0') == std::wstring_view::npos;
}

// What Windows would see of a text.
[[nodiscard]] constexpr std::wstring_view UpToZero(std::wstring_view text) {
    return text.substr(0, text.find(L'\0'));
}

} // namespace korvane::settings
