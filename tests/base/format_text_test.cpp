#include "base/format_text.h"

#include <gtest/gtest.h>

#include <climits>

namespace korvane::base {
namespace {

TEST(FormatText, ReadsWideTextForPercentS) {
    EXPECT_EQ(FormatText(L"[%s]", L"東京"), L"[東京]");
}

TEST(FormatText, TakesEveryKindOfText) {
    const std::wstring owned = L"b";
    const std::wstring_view view = L"c";

    EXPECT_EQ(FormatText(L"%s%s%s%s", L"a", owned, view, std::wstring{L"d"}), L"abcd");
}

TEST(FormatText, KeepsTheZerosInsideAText) {
    const std::wstring_view text{L"a\0b", 3};

    EXPECT_EQ(FormatText(L"<%s>", text), (std::wstring{L"<a\0b>", 5}));
}

TEST(FormatText, WritesNumbers) {
    EXPECT_EQ(FormatText(L"%d %d %d", 0, -1, 42), L"0 -1 42");
    EXPECT_EQ(FormatText(L"%d %d", INT_MIN, INT_MAX), L"-2147483648 2147483647");
    EXPECT_EQ(FormatText(L"%u %u", 4294967295U, -1), L"4294967295 4294967295");
    EXPECT_EQ(FormatText(L"%X %X", 0xAB0CU, -1), L"AB0C FFFFFFFF");
    EXPECT_EQ(FormatText(L"%c%c", L'あ', L'b'), L"あb");
}

TEST(FormatText, FillsNumbersUpToTheirWidth) {
    EXPECT_EQ(FormatText(L"%02d|%02d|%02d|%02d", 0, 7, 12, 123), L"00|07|12|123");
    EXPECT_EQ(FormatText(L"%04u|%04X|%4d", 59U, 0xABU, -7), L"0059|00AB|  -7");
}

TEST(FormatText, PutsTheZerosBehindTheSign) {
    EXPECT_EQ(FormatText(L"%04d", -7), L"-007");
}

TEST(FormatText, LimitsTheWidth) {
    EXPECT_EQ(FormatText(L"%099999999999999999999d", 1), std::wstring(63, L'0') + L'1');
}

TEST(FormatText, WritesAPercentSignForTwo) {
    EXPECT_EQ(FormatText(L"100%% %d%%", 5), L"100% 5%");
    EXPECT_EQ(FormatText(L"%%s", L"unused"), L"%s");
}

TEST(FormatText, LeavesAConversionWithoutAnArgument) {
    EXPECT_EQ(FormatText(L"%s and %s", L"one"), L"one and %s");
    EXPECT_EQ(FormatText(L"%d %02d"), L"%d %02d");
}

TEST(FormatText, LeavesAConversionOfTheWrongType) {
    EXPECT_EQ(FormatText(L"%s", 5), L"%s");
    EXPECT_EQ(FormatText(L"%d", L"five"), L"%d");
    EXPECT_EQ(FormatText(L"%c", 65), L"%c");
    EXPECT_EQ(FormatText(L"%s %d", 5, L"x"), L"%s 5");
}

TEST(FormatText, LeavesWhatItDoesNotKnow) {
    EXPECT_EQ(FormatText(L"%n%p%", 1, 2), L"%n%p%");
    EXPECT_EQ(FormatText(L"5 % of %02", 1), L"5 % of %02");
    EXPECT_EQ(FormatText(L"%-3d %d", 1), L"%-3d 1");
}

TEST(FormatText, IgnoresArgumentsWithoutAConversion) {
    EXPECT_EQ(FormatText(L"text", 1, L"x"), L"text");
    EXPECT_EQ(FormatText(L""), L"");
}

TEST(FormatText, DoesNotLookIntoWhatItPutsIn) {
    EXPECT_EQ(FormatText(L"%s %d", L"%d", 3), L"%d 3");
}

} // namespace
} // namespace korvane::base
