#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace korvane::settings {

// Binary values as an INI file holds them: two capital letters per byte, 'A' + low nibble and then 'A' + high nibble,
// so that 0x3C reads "MD".
[[nodiscard]] std::wstring EncodeNibbles(std::span<const std::byte> bytes);

// The bytes behind the letters. An odd letter at the end is ignored: a value cut by a buffer's end may leave one. A
// letter outside A to P in any pair makes the whole value unreadable, and the result is then empty.
[[nodiscard]] std::optional<std::vector<std::byte>> DecodeNibbles(std::wstring_view letters);

} // namespace korvane::settings
