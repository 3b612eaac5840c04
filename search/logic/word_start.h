#pragma once

#include <cstddef>
#include <string_view>

namespace korvane::search {

// Where the word before `caret` begins, as Ctrl+Backspace takes it away: the blanks before the caret belong to it, and
// a word ends where the kind of writing changes. Positions are UTF-16 units; never within a pair.
[[nodiscard]] std::size_t WordStart(std::wstring_view text, std::size_t caret);

} // namespace korvane::search
