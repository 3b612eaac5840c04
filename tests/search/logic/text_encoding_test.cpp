#include "search/logic/text_encoding.h"

#include <gtest/gtest.h>

using namespace korvane::search;

namespace {

bool IsShiftJisLead(unsigned char byte) {
    return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
}

std::string Euc(std::string_view shiftJis) {
    return ConvertToEucJp(shiftJis, IsShiftJisLead);
}

} // namespace

TEST(PercentEncoding, LeavesNoByteAsItIs) {
    EXPECT_EQ(PercentEncodeBytes("abc"), L"%61%62%63");
    EXPECT_EQ(PercentEncodeBytes("-_.~"), L"%2D%5F%2E%7E");
    EXPECT_EQ(PercentEncodeBytes(" "), L"%20");
    EXPECT_EQ(PercentEncodeBytes("\xE3\x81\x82"), L"%E3%81%82");
    EXPECT_EQ(PercentEncodeBytes({"\0\xFF", 2}), L"%00%FF");
    EXPECT_EQ(PercentEncodeBytes(""), L"");
}

TEST(PercentEncoding, IsThreeTimesAsLong) {
    std::string bytes;
    for (int value = 0; value < 256; ++value) bytes += static_cast<char>(value);

    EXPECT_EQ(PercentEncodeBytes(bytes).size(), 3U * 256U);
    EXPECT_EQ(PercentEncodeBytes(std::string(1'000'000, 'x')).size(), 3'000'000U);
}

TEST(JisCode, OfKnownCharacters) {
    EXPECT_EQ(JisFromShiftJis(0x82A0), 0x2422U); // hiragana a
    EXPECT_EQ(JisFromShiftJis(0x8140), 0x2121U); // the first
    EXPECT_EQ(JisFromShiftJis(0x817E), 0x215FU);
    EXPECT_EQ(JisFromShiftJis(0x8180), 0x2160U);
    EXPECT_EQ(JisFromShiftJis(0x819E), 0x217EU);
    EXPECT_EQ(JisFromShiftJis(0x819F), 0x2221U);
    EXPECT_EQ(JisFromShiftJis(0x9FFC), 0x5E7EU);
    EXPECT_EQ(JisFromShiftJis(0xE040), 0x5F21U);
    EXPECT_EQ(JisFromShiftJis(0xEFFC), 0x7E7EU); // the last
}

TEST(JisCode, IsZeroForWhatIsNoCharacter) {
    for (const unsigned code : {0x0000U, 0x0041U, 0x00B1U, 0x8100U, 0x813FU, 0x817FU, 0x81FDU, 0x81FFU, 0x8040U,
                                0xA040U, 0xDF40U, 0xF040U, 0xFC4BU, 0xFFFFU, 0x182A0U})
        EXPECT_EQ(JisFromShiftJis(code), 0U) << code;
}

TEST(EucJp, TurnsADoubleByteCharacterIntoItsJisCodeWithTheHighBits) {
    EXPECT_EQ(Euc("\x82\xA0"), "\xA4\xA2");
}

TEST(EucJp, MarksHalfWidthKatakana) {
    EXPECT_EQ(Euc("\xB1"), "\x8E\xB1");
    EXPECT_EQ(Euc("\xA1\xDF"), "\x8E\xA1\x8E\xDF");
}

TEST(EucJp, LeavesTheRestAlone) {
    EXPECT_EQ(Euc("a~ \x7F\x80\xA0\xFD\xFF"), "a~ \x7F\x80\xA0\xFD\xFF");
    EXPECT_EQ(Euc(""), "");
}

TEST(EucJp, WritesARejectedCodeAsTwoBytes0x80) {
    EXPECT_EQ(Euc("\x81\x20z"), "\x80\x80z");
    EXPECT_EQ(Euc("\xF0\x40z"), "\x80\x80z");
}

TEST(EucJp, EndsSafelyAtALeadByteThatStandsAlone) {
    EXPECT_EQ(Euc("a\x82"), "a\x80\x80");
}

TEST(EucJp, TakesAMegabyte) {
    std::string bytes;
    for (int i = 0; i < 500'000; ++i) bytes += "\x82\xA0";

    EXPECT_EQ(Euc(bytes).size(), bytes.size());
}

TEST(EucJp, AsksTheGivenTestForLeadBytes) {
    EXPECT_EQ(ConvertToEucJp("\x82\xA0", [](unsigned char) { return false; }), "\x82\xA0");
}

TEST(SearchTextEncoder, AsksForThePageOfEachEncoding) {
    std::string asked;
    const SearchTextEncoder encoder{[&](std::wstring_view, CodePage page) {
                                        asked += page == CodePage::kUtf8 ? '8' : page == CodePage::kUtf7 ? '7' : 'a';
                                        return std::string{"\x82\xA0"};
                                    },
                                    IsShiftJisLead};

    EXPECT_EQ(encoder.Encode(L"x", TextEncoding::kUtf8), L"%82%A0");
    EXPECT_EQ(encoder.Encode(L"x", TextEncoding::kUtf7), L"%82%A0");
    EXPECT_EQ(encoder.Encode(L"x", TextEncoding::kShiftJis), L"%82%A0");
    EXPECT_EQ(encoder.Encode(L"x", TextEncoding::kEucJp), L"%A4%A2");
    EXPECT_EQ(encoder.Encode(L"x &", TextEncoding::kAsIs), L"x &");
    EXPECT_EQ(asked, "87aa");
}

TEST(SearchTextEncoder, MakesNothingOfAnEmptyText) {
    const SearchTextEncoder encoder{[](std::wstring_view, CodePage) { return std::string{"never"}; }, IsShiftJisLead};

    for (const auto encoding :
         {TextEncoding::kUtf8, TextEncoding::kUtf7, TextEncoding::kShiftJis, TextEncoding::kEucJp, TextEncoding::kAsIs})
        EXPECT_EQ(encoder.Encode(L"", encoding), L"");
}
