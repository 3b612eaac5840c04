#include "search/code_pages.h"

namespace korvane::search {

void FollowSystemLocale() {
    ::SetThreadLocale(::GetSystemDefaultLCID());
}

std::string BytesInCodePage(std::wstring_view text, UINT codePage) {
    // The conversion takes a length of 0 for an error.
    if (text.empty()) return {};
    const auto convert = [&](char* target, int size) {
        return ::WideCharToMultiByte(codePage, 0, text.data(), static_cast<int>(text.size()), target, size, nullptr,
                                     nullptr);
    };
    std::string bytes(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
    const int length = bytes.empty() ? 0 : convert(bytes.data(), static_cast<int>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(length));
    return bytes;
}

SearchTextEncoder WindowsTextEncoder(UINT ansiPage) {
    const auto convert = [ansiPage](std::wstring_view text, CodePage page) {
        switch (page) {
        case CodePage::kUtf8:
            return BytesInCodePage(text, CP_UTF8);
        case CodePage::kUtf7:
            return BytesInCodePage(text, CP_UTF7);
        case CodePage::kAnsi:
            break;
        }
        return BytesInCodePage(text, ansiPage);
    };
    // IsDBCSLeadByte would ask for the system's page, which need not be the thread's.
    const auto isLeadByte = [ansiPage](unsigned char byte) { return ::IsDBCSLeadByteEx(ansiPage, byte) != FALSE; };
    return {convert, isLeadByte};
}

} // namespace korvane::search
