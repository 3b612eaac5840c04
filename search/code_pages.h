#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "search/logic/text_encoding.h"

namespace korvane::search {

// Makes this thread's code page the system's. Without it the thread has that of the user's formats for numbers and
// dates, which on Japanese Windows may be English and know no kanji.
void FollowSystemLocale();

// The text in a code page of Windows; characters that the page cannot hold become the system's default character.
// Empty for an empty text or a page that the system does not have.
[[nodiscard]] std::string BytesInCodePage(std::wstring_view text, UINT codePage);

// An encoder over Windows' conversions. `ansiPage` stands for CodePage::kAnsi; a test may name another than the
// thread's own.
[[nodiscard]] SearchTextEncoder WindowsTextEncoder(UINT ansiPage = CP_THREAD_ACP);

} // namespace korvane::search
