#include "app/logic/clipboard_rules.h"

#include <algorithm>

#include "app/logic/whole_characters.h"

namespace korvane::app {
namespace {

// The last three are the next line, line and paragraph separators of Unicode.
constexpr std::wstring_view kLineBreaks = L"\r\n\v\f\u0085\u2028\u2029";

} // namespace

std::wstring OneLine(std::wstring_view copied) {
    copied = copied.substr(0, copied.find(L'\0'));
    std::wstring line;
    std::size_t at = copied.find_first_not_of(kLineBreaks);
    // One more than the longest tells that the text is to be cut, and where.
    while (at < copied.size() && line.size() <= kLongestClipboardText) {
        const std::size_t end = copied.find_first_of(kLineBreaks, at);
        if (!line.empty()) line += L' ';
        line += copied.substr(at, std::min(end - at, kLongestClipboardText + 1));
        at = copied.find_first_not_of(kLineBreaks, end);
    }
    CutToLength(line, kLongestClipboardText);
    return line;
}

} // namespace korvane::app
