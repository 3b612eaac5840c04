#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace korvane::base {

// Compares as the C runtime's _wcsicmp does in its default locale: only the letters A to Z have two cases.
[[nodiscard]] bool EqualIgnoringAsciiCase(std::wstring_view left, std::wstring_view right);

// The leading decimal number of a text, as _wtoi reads it: white space and a sign may go before it, what follows the
// digits does not count, and a text without a number gives 0. A number out of range gives the nearest that fits.
[[nodiscard]] int LeadingInteger(std::wstring_view text);

// The ordinary digit for a wide one (U+FF10 to U+FF19), which an input method may give; any other character unchanged.
[[nodiscard]] constexpr wchar_t NarrowDigit(wchar_t character) {
    constexpr wchar_t kWideZero = L'\uFF10';
    constexpr wchar_t kWideNine = L'\uFF19';
    const bool wide = character >= kWideZero && character <= kWideNine;
    return wide ? static_cast<wchar_t>(L'0' + (character - kWideZero)) : character;
}

// Without the blanks, tabs and line breaks at both ends.
[[nodiscard]] std::wstring_view Trimmed(std::wstring_view text);

// The first `most` non-empty pieces between separators: runs of separators count as one, as with wcstok.
[[nodiscard]] std::vector<std::wstring_view> SplitText(std::wstring_view text, wchar_t separator,
                                                       std::size_t most = std::wstring_view::npos);

// Every occurrence of `what` replaced, in one pass from the left; what is put in is not looked at again.
[[nodiscard]] std::wstring ReplaceAll(std::wstring_view text, std::wstring_view what, std::wstring_view with);

} // namespace korvane::base
