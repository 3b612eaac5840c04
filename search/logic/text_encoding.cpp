#include "search/logic/text_encoding.h"

#include <utility>

namespace korvane::search {
namespace {

constexpr bool IsHalfWidthKatakana(unsigned char byte) {
    return byte >= 0xA1 && byte <= 0xDF;
}

} // namespace

std::wstring PercentEncodeBytes(std::string_view bytes) {
    constexpr wchar_t kDigits[] = L"0123456789ABCDEF";
    // The percent signs are there from the beginning; only the digits are put in.
    std::wstring encoded(bytes.size() * 3, L'%');
    wchar_t* digit = encoded.data();
    for (const char character : bytes) {
        const auto byte = static_cast<unsigned char>(character);
        digit[1] = kDigits[byte >> 4];
        digit[2] = kDigits[byte & 0x0F];
        digit += 3;
    }
    return encoded;
}

unsigned JisFromShiftJis(unsigned code) {
    const unsigned lead = code >> 8;
    const unsigned trail = code & 0xFF;
    // The user-defined area from 0xF0 on has no place in JIS.
    const bool isLead = (lead >= 0x81 && lead <= 0x9F) || (lead >= 0xE0 && lead <= 0xEF);
    const bool isTrail = trail >= 0x40 && trail <= 0xFC && trail != 0x7F;
    if (!isLead || !isTrail) return 0;

    // One lead byte covers two JIS rows of 94 cells; the trail bytes below 0x9F belong to the first of them, with a
    // gap at 0x7F.
    const unsigned pair = lead - (lead >= 0xE0 ? 0xC1 : 0x81);
    const unsigned firstRow = 0x21 + pair * 2;
    if (trail >= 0x9F) return ((firstRow + 1) << 8) + trail - 0x7E;
    return (firstRow << 8) + trail - (trail > 0x7F ? 0x20 : 0x1F);
}

std::string ConvertToEucJp(std::string_view shiftJis, const IsLeadByte& isLeadByte) {
    std::string euc;
    euc.reserve(shiftJis.size() * 2);
    for (std::size_t at = 0; at < shiftJis.size(); ++at) {
        const auto byte = static_cast<unsigned char>(shiftJis[at]);
        if (isLeadByte(byte)) {
            ++at;
            // Behind the last byte there is nothing; a zero there makes a code that is rejected like any other.
            const unsigned trail = at < shiftJis.size() ? static_cast<unsigned char>(shiftJis[at]) : 0U;
            const unsigned jis = JisFromShiftJis(byte * 256U + trail);
            euc += static_cast<char>((jis >> 8) | 0x80U);
            euc += static_cast<char>((jis & 0xFFU) | 0x80U);
        } else {
            if (IsHalfWidthKatakana(byte)) euc += '\x8E';
            euc += shiftJis[at];
        }
    }
    return euc;
}

SearchTextEncoder::SearchTextEncoder(ToCodePage convert, IsLeadByte isLeadByte)
    : convert_{std::move(convert)}, isLeadByte_{std::move(isLeadByte)} {}

std::string SearchTextEncoder::Bytes(std::wstring_view text, CodePage page) const {
    return text.empty() ? std::string{} : convert_(text, page);
}

std::wstring SearchTextEncoder::EncodeSearchText(std::wstring_view text, CodePage page) const {
    return PercentEncodeBytes(Bytes(text, page));
}

std::wstring SearchTextEncoder::Encode(std::wstring_view text, TextEncoding encoding) const {
    switch (encoding) {
    case TextEncoding::kUtf8:
        return EncodeSearchText(text, CodePage::kUtf8);
    case TextEncoding::kUtf7:
        return EncodeSearchText(text, CodePage::kUtf7);
    case TextEncoding::kShiftJis:
        return EncodeSearchText(text, CodePage::kAnsi);
    case TextEncoding::kEucJp:
        return PercentEncodeBytes(ConvertToEucJp(Bytes(text, CodePage::kAnsi), isLeadByte_));
    case TextEncoding::kAsIs:
        break;
    }
    return std::wstring{text};
}

} // namespace korvane::search
