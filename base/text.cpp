#include "base/text.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace korvane::base {
namespace {

constexpr std::wstring_view kWhiteSpace = L" \t\r\n\v\f";

constexpr wchar_t FoldAscii(wchar_t character) {
    return character >= L'A' && character <= L'Z' ? static_cast<wchar_t>(character - L'A' + L'a') : character;
}

} // namespace

bool EqualIgnoringAsciiCase(std::wstring_view left, std::wstring_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](wchar_t a, wchar_t b) { return FoldAscii(a) == FoldAscii(b); });
}

int LeadingInteger(std::wstring_view text) {
    std::size_t at = std::min(text.find_first_not_of(kWhiteSpace), text.size());
    bool negative = false;
    if (at < text.size() && (text[at] == L'-' || text[at] == L'+')) negative = text[at++] == L'-';

    constexpr std::int64_t kLimit = std::int64_t{std::numeric_limits<int>::max()} + 1;
    std::int64_t value = 0;
    for (; at < text.size() && text[at] >= L'0' && text[at] <= L'9'; ++at)
        value = std::min(value * 10 + (text[at] - L'0'), kLimit);
    if (negative) return static_cast<int>(-value);
    return static_cast<int>(std::min(value, kLimit - 1));
}

std::wstring_view Trimmed(std::wstring_view text) {
    const std::size_t first = text.find_first_not_of(kWhiteSpace);
    if (first == std::wstring_view::npos) return {};
    return text.substr(first, text.find_last_not_of(kWhiteSpace) - first + 1);
}

std::vector<std::wstring_view> SplitText(std::wstring_view text, wchar_t separator, std::size_t most) {
    std::vector<std::wstring_view> pieces;
    std::size_t at = text.find_first_not_of(separator);
    while (at != std::wstring_view::npos && pieces.size() < most) {
        const std::size_t end = std::min(text.find(separator, at), text.size());
        pieces.push_back(text.substr(at, end - at));
        at = text.find_first_not_of(separator, end);
    }
    return pieces;
}

std::wstring ReplaceAll(std::wstring_view text, std::wstring_view what, std::wstring_view with) {
    std::wstring result;
    if (what.empty()) return result.append(text);
    std::size_t found = text.find(what);
    // Enough for one occurrence, which is the usual case.
    if (found != std::wstring_view::npos) result.reserve(text.size() + with.size());
    std::size_t at = 0;
    for (; found != std::wstring_view::npos; found = text.find(what, at)) {
        result.append(text.substr(at, found - at)).append(with);
        at = found + what.size();
    }
    return result.append(text.substr(at));
}

} // namespace korvane::base
