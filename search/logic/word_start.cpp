#include "search/logic/word_start.h"

#include <algorithm>

namespace korvane::search {
namespace {

enum class Kind { kBlank, kSymbol, kLetter, kHiragana, kKatakana, kIdeograph };

constexpr bool Between(wchar_t c, unsigned first, unsigned last) {
    return static_cast<unsigned>(c) >= first && static_cast<unsigned>(c) <= last;
}

// By the blocks of the Unicode standard, as far as Japanese and Latin texts use them.
constexpr Kind KindOf(wchar_t c) {
    if (c == L' ' || c == L'\t' || c == L'\u3000') return Kind::kBlank;
    if (Between(c, 0x3041, 0x309F)) return Kind::kHiragana;
    if (Between(c, 0x30A0, 0x30FF) || Between(c, 0xFF66, 0xFF9F)) return Kind::kKatakana;
    // The iteration mark, the ideographs, and the halves of those outside the first plane.
    if (c == L'\u3005' || Between(c, 0x3400, 0x9FFF) || Between(c, 0xF900, 0xFAFF) || Between(c, 0xD800, 0xDFFF))
        return Kind::kIdeograph;
    const bool wide = Between(c, 0xFF01, 0xFF5E);
    const unsigned narrow = wide ? static_cast<unsigned>(c) - 0xFEE0 : static_cast<unsigned>(c);
    if (narrow < 0x80) {
        const bool letter = (narrow >= '0' && narrow <= '9') || (narrow >= 'A' && narrow <= 'Z') ||
                            (narrow >= 'a' && narrow <= 'z') || narrow == '_';
        return letter ? Kind::kLetter : Kind::kSymbol;
    }
    if (Between(c, 0x3001, 0x303F) || Between(c, 0x2010, 0x2BFF) || Between(c, 0xFF5F, 0xFF65)) return Kind::kSymbol;
    return Kind::kLetter;
}

} // namespace

std::size_t WordStart(std::wstring_view text, std::size_t caret) {
    std::size_t at = std::min(caret, text.size());
    while (at > 0 && KindOf(text[at - 1]) == Kind::kBlank) --at;
    if (at == 0) return 0;
    const Kind kind = KindOf(text[at - 1]);
    while (at > 0 && KindOf(text[at - 1]) == kind) --at;
    return at;
}

} // namespace korvane::search
