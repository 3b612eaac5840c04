#include "settings/logic/nibble_codec.h"

#include <gtest/gtest.h>

namespace korvane::settings {
namespace {

std::vector<std::byte> Bytes(std::initializer_list<unsigned> values) {
    std::vector<std::byte> bytes;
    for (const unsigned value : values) bytes.push_back(static_cast<std::byte>(value));
    return bytes;
}

TEST(NibbleCodec, WritesTheLowNibbleFirst) {
    EXPECT_EQ(EncodeNibbles(Bytes({0x3C})), L"MD");
    EXPECT_EQ(EncodeNibbles(Bytes({0x00, 0xFF, 0x0F, 0xF0})), L"AAPPPAAP");
}

TEST(NibbleCodec, WritesTwoLettersPerByte) {
    EXPECT_EQ(EncodeNibbles(std::vector<std::byte>(16)), std::wstring(32, L'A'));
    EXPECT_EQ(EncodeNibbles({}), L"");
}

TEST(NibbleCodec, ReadsBackEveryByteValue) {
    std::vector<std::byte> bytes;
    for (unsigned i = 0; i < 256; ++i) bytes.push_back(static_cast<std::byte>(i));

    EXPECT_EQ(DecodeNibbles(EncodeNibbles(bytes)), bytes);
}

TEST(NibbleCodec, IgnoresAnOddLetterAtTheEnd) {
    EXPECT_EQ(DecodeNibbles(L"MDA"), Bytes({0x3C}));
    EXPECT_EQ(DecodeNibbles(L"MD?"), Bytes({0x3C}));
    EXPECT_EQ(DecodeNibbles(L"M"), Bytes({}));
}

TEST(NibbleCodec, ReadsNoTextAsNoBytes) {
    EXPECT_EQ(DecodeNibbles(L""), Bytes({}));
}

TEST(NibbleCodec, RefusesEveryOtherCharacterInAnyPair) {
    for (const wchar_t* text : {L"QA", L"AQ", L"md", L"MDmd", L"3C", L"A ", L" A", L"@A", L"MDM\xFFFFMD", L"ＡＡ"})
        EXPECT_FALSE(DecodeNibbles(text)) << text;
}

} // namespace
} // namespace korvane::settings
