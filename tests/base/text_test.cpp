#include "base/text.h"

#include <gtest/gtest.h>

#include <climits>

namespace korvane::base {
namespace {

using Pieces = std::vector<std::wstring_view>;

TEST(EqualIgnoringAsciiCase, FoldsTheLettersAToZOnly) {
    EXPECT_TRUE(EqualIgnoringAsciiCase(L"Azure.TXT", L"aZURE.txt"));
    EXPECT_TRUE(EqualIgnoringAsciiCase(L"", L""));
    EXPECT_FALSE(EqualIgnoringAsciiCase(L"abc", L"abcd"));
    EXPECT_FALSE(EqualIgnoringAsciiCase(L"[", L"{"));
    EXPECT_FALSE(EqualIgnoringAsciiCase(L"@", L"`"));
    EXPECT_FALSE(EqualIgnoringAsciiCase(L"Ａ", L"ａ"));
    EXPECT_FALSE(EqualIgnoringAsciiCase(L"Ä", L"ä"));
}

TEST(NarrowDigit, MakesWideDigitsOrdinaryAndLeavesTheRestAlone) {
    EXPECT_EQ(NarrowDigit(L'\uFF10'), L'0');
    EXPECT_EQ(NarrowDigit(L'\uFF19'), L'9');
    for (const wchar_t other : {L'0', L'9', L'a', L'\b', L'\uFF0F', L'\uFF1A'}) EXPECT_EQ(NarrowDigit(other), other);
}

TEST(LeadingInteger, ReadsTheDigitsAtTheBeginning) {
    EXPECT_EQ(LeadingInteger(L"42"), 42);
    EXPECT_EQ(LeadingInteger(L" \t-17,5"), -17);
    EXPECT_EQ(LeadingInteger(L"+8x9"), 8);
    EXPECT_EQ(LeadingInteger(L"0010"), 10);
}

TEST(LeadingInteger, ReadsNoNumberAsZero) {
    for (const wchar_t* text : {L"", L" ", L"x5", L"-", L"--5", L"- 5", L"+-5", L"０１"})
        EXPECT_EQ(LeadingInteger(text), 0) << text;
}

TEST(LeadingInteger, GivesTheNearestNumberThatFits) {
    EXPECT_EQ(LeadingInteger(L"2147483647"), INT_MAX);
    EXPECT_EQ(LeadingInteger(L"2147483648"), INT_MAX);
    EXPECT_EQ(LeadingInteger(L"-2147483648"), INT_MIN);
    EXPECT_EQ(LeadingInteger(L"-2147483649"), INT_MIN);
    EXPECT_EQ(LeadingInteger(std::wstring(1000, L'9')), INT_MAX);
}

TEST(Trimmed, TakesBlanksFromBothEndsOnly) {
    EXPECT_EQ(Trimmed(L" \t\r\na b\v\f "), L"a b");
    EXPECT_EQ(Trimmed(L"ab"), L"ab");
    EXPECT_EQ(Trimmed(L"　全角　"), L"　全角　");
    EXPECT_EQ(Trimmed(L" \n "), L"");
    EXPECT_EQ(Trimmed(L""), L"");
}

TEST(SplitText, TakesARunOfSeparatorsForOne) {
    EXPECT_EQ(SplitText(L"1,5,,6,", L','), (Pieces{L"1", L"5", L"6"}));
    EXPECT_EQ(SplitText(L",,a", L','), (Pieces{L"a"}));
    EXPECT_EQ(SplitText(L"a, ,b", L','), (Pieces{L"a", L" ", L"b"}));
    EXPECT_EQ(SplitText(L"whole", L','), (Pieces{L"whole"}));
}

TEST(SplitText, StopsAfterAsManyAsAreWanted) {
    EXPECT_EQ(SplitText(L",a,b,c", L',', 2), (Pieces{L"a", L"b"}));
    EXPECT_EQ(SplitText(L"a,b", L',', 3), (Pieces{L"a", L"b"}));
    EXPECT_TRUE(SplitText(L"a,b", L',', 0).empty());
}

TEST(SplitText, FindsNothingInSeparatorsAlone) {
    EXPECT_TRUE(SplitText(L",,,", L',').empty());
    EXPECT_TRUE(SplitText(L"", L',').empty());
}

TEST(ReplaceAll, ReplacesFromTheLeftInOnePass) {
    EXPECT_EQ(ReplaceAll(L"a\r\nb\r\n", L"\r\n", L" "), L"a b ");
    EXPECT_EQ(ReplaceAll(L"aaa", L"aa", L"b"), L"ba");
    EXPECT_EQ(ReplaceAll(L"x", L"x", L"xx"), L"xx");
    EXPECT_EQ(ReplaceAll(L"abc", L"b", L""), L"ac");
}

TEST(ReplaceAll, LeavesATextWithoutAMatchAlone) {
    EXPECT_EQ(ReplaceAll(L"abc", L"x", L"y"), L"abc");
    EXPECT_EQ(ReplaceAll(L"abc", L"", L"y"), L"abc");
    EXPECT_EQ(ReplaceAll(L"", L"x", L"y"), L"");
}

} // namespace
} // namespace korvane::base
