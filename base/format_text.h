#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <variant>

namespace korvane::base {

// One value to be put into a format.
using FormatArgument = std::variant<int, unsigned, wchar_t, std::wstring_view>;

// Fills the formats of the string table. It knows %s (always wide text), %c, %d, %u, %X and %%, numbers with a zero
// flag and width if need be ("%02d"). The C library's own functions cannot serve: their wide %s reads narrow text on
// one compiler and wide text on another. A conversion without an argument, or with one of the wrong type, is left as it
// stands; no format can crash the program.
[[nodiscard]] std::wstring FormatArguments(std::wstring_view format, std::initializer_list<FormatArgument> arguments);

template <class... Arguments>
[[nodiscard]] std::wstring FormatText(std::wstring_view format, const Arguments&... arguments) {
    return FormatArguments(format, {FormatArgument{arguments}...});
}

} // namespace korvane::base
