#include "app/logic/bar_drop.h"

namespace korvane::app {

std::wstring QuotedPaths(std::span<const std::wstring> paths) {
    std::wstring all;
    // No path holds a quotation mark.
    for (const std::wstring& path : paths) all.append(all.empty() ? L"\"" : L" \"").append(path) += L'"';
    return all;
}

std::wstring WithAppended(std::wstring text, const std::wstring& more) {
    if (!text.empty() && !more.empty() && text.back() != L' ') text += L' ';
    return text += more;
}

} // namespace korvane::app
