#pragma once

#include <string>

namespace korvane::app {

// Shortens a text to at most this many UTF-16 units without leaving half of a character at its end.
inline void CutToLength(std::wstring& text, std::size_t longest) {
    if (text.size() <= longest) return;
    text.resize(longest);
    constexpr wchar_t kFirstHighSurrogate = 0xD800;
    constexpr wchar_t kLastHighSurrogate = 0xDBFF;
    if (!text.empty() && text.back() >= kFirstHighSurrogate && text.back() <= kLastHighSurrogate) text.pop_back();
}

} // namespace korvane::app
