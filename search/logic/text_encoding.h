#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace korvane::search {

// The code pages that search texts are converted to. kAnsi is the thread's own: Shift JIS on Japanese Windows.
enum class CodePage { kUtf8, kUtf7, kAnsi };

// Converts text into the bytes of a code page. Characters that the page cannot hold become its default character.
using ToCodePage = std::function<std::string(std::wstring_view, CodePage)>;

// Whether a byte is the first of two in the page kAnsi.
using IsLeadByte = std::function<bool(unsigned char)>;

// How a search text is written into an address.
enum class TextEncoding { kUtf8, kUtf7, kShiftJis, kEucJp, kAsIs };

// Every byte as a percent sign and two capital hexadecimal digits, letters and digits too: sites take it, and what no
// site can misread needs no table of exceptions. Three times as long as the input.
[[nodiscard]] std::wstring PercentEncodeBytes(std::string_view bytes);

// The JIS X 0208 code of a double-byte Shift JIS code (lead byte high), or 0 when there is none. Answers as the C
// runtime's _mbcjmstojis does under code page 932.
[[nodiscard]] unsigned JisFromShiftJis(unsigned code);

// Shift JIS bytes as EUC-JP. Half-width katakana get their prefix 0x8E; a double-byte code that JIS does not know
// becomes 0x80 0x80, and so does a lead byte that stands alone at the end.
[[nodiscard]] std::string ConvertToEucJp(std::string_view shiftJis, const IsLeadByte& isLeadByte);

// Writes search texts into addresses, by conversions that it is given.
class SearchTextEncoder {
public:
    SearchTextEncoder(ToCodePage convert, IsLeadByte isLeadByte);

    [[nodiscard]] std::wstring EncodeSearchText(std::wstring_view text, CodePage page) const;
    [[nodiscard]] std::wstring Encode(std::wstring_view text, TextEncoding encoding) const;

private:
    [[nodiscard]] std::string Bytes(std::wstring_view text, CodePage page) const;

    ToCodePage convert_;
    IsLeadByte isLeadByte_;
};

} // namespace korvane::search
