#include "settings/logic/nibble_codec.h"

namespace korvane::settings {
namespace {

constexpr bool IsNibble(wchar_t letter) {
    return letter >= L'A' && letter <= L'P';
}

constexpr unsigned NibbleOf(wchar_t letter) {
    return static_cast<unsigned>(letter - L'A');
}

constexpr wchar_t LetterOf(unsigned nibble) {
    return L"ABCDEFGHIJKLMNOP"[nibble];
}

} // namespace

std::wstring EncodeNibbles(std::span<const std::byte> bytes) {
    std::wstring letters;
    letters.reserve(bytes.size() * 2);
    for (const std::byte value : bytes) {
        const auto bits = std::to_integer<unsigned>(value);
        letters += LetterOf(bits & 0xFU);
        letters += LetterOf(bits >> 4);
    }
    return letters;
}

std::optional<std::vector<std::byte>> DecodeNibbles(std::wstring_view letters) {
    std::vector<std::byte> bytes;
    bytes.reserve(letters.size() / 2);
    for (std::size_t at = 0; at + 1 < letters.size(); at += 2) {
        if (!IsNibble(letters[at]) || !IsNibble(letters[at + 1])) return std::nullopt;
        bytes.push_back(static_cast<std::byte>(NibbleOf(letters[at]) | (NibbleOf(letters[at + 1]) << 4)));
    }
    return bytes;
}

} // namespace korvane::settings
