#include "app/logic/clipboard_rules.h"

#include <gtest/gtest.h>

using namespace korvane::app;

namespace {
constexpr std::size_t kLongest = kLongestClipboardText;
} // namespace

TEST(ClipboardMarks, UnmarkedContentMayBeTaken) {
    EXPECT_TRUE(MayTakeFromClipboard({}));
}

TEST(ClipboardMarks, EachMarkAloneForbidsToTakeIt) {
    EXPECT_FALSE(MayTakeFromClipboard({.excludedFromMonitors = true}));
    EXPECT_FALSE(MayTakeFromClipboard({.viewersIgnore = true}));
    EXPECT_FALSE(MayTakeFromClipboard({.mayBeKept = 0U}));
}

TEST(ClipboardMarks, ContentThatMayBeKeptMayBeTaken) {
    EXPECT_TRUE(MayTakeFromClipboard({.mayBeKept = 1U}));
}

TEST(ClipboardMarks, APermissionDoesNotUndoAnotherMark) {
    EXPECT_FALSE(MayTakeFromClipboard({.excludedFromMonitors = true, .mayBeKept = 1U}));
}

TEST(ClipboardFormats, OnlyTheTwoTextsAreTexts) {
    constexpr unsigned kOemText = 7;

    EXPECT_TRUE(IsTextFormat(1));
    EXPECT_TRUE(IsTextFormat(13));
    for (const unsigned format : {0U, 2U, kOemText, 8U, 15U, 0xC000U}) EXPECT_FALSE(IsTextFormat(format)) << format;
}

struct OneLineCase {
    const char* name;
    std::wstring_view copied;
    std::wstring_view line;
};

class OneLineTest : public testing::TestWithParam<OneLineCase> {};

TEST_P(OneLineTest, IsWhatGoesIntoTheBox) {
    EXPECT_EQ(OneLine(GetParam().copied), GetParam().line);
}

using namespace std::string_view_literals;

// clang-format off
INSTANTIATE_TEST_SUITE_P(Table, OneLineTest, testing::Values(
    OneLineCase{"PlainText",                     L"東京 天気"sv,               L"東京 天気"sv},
    OneLineCase{"Nothing",                       L""sv,                        L""sv},
    OneLineCase{"OnlyBreaks",                    L"\r\n\r\n"sv,                L""sv},
    OneLineCase{"BreakAtTheEnd",                 L"cell\r\n"sv,                L"cell"sv},
    OneLineCase{"BreakAtTheStart",               L"\n\nline"sv,                L"line"sv},
    OneLineCase{"WindowsBreakInside",            L"one\r\ntwo"sv,              L"one two"sv},
    OneLineCase{"UnixBreakInside",               L"one\ntwo"sv,                L"one two"sv},
    OneLineCase{"RunOfBreaksIsOneBlank",         L"one\r\n\r\n\ntwo\rthree"sv, L"one two three"sv},
    OneLineCase{"OtherSeparatorsBreakLinesToo",  L"a\u2028b\u2029c\u0085d\ve\ff"sv, L"a b c d e f"sv},
    OneLineCase{"BlanksAndTabsStay",             L" a\tb \r\n c "sv,           L" a\tb   c "sv},
    OneLineCase{"OnlyBlanksStay",                L"  "sv,                      L"  "sv},
    OneLineCase{"EndsAtTheFirstZero",            L"seen\0unseen"sv,            L"seen"sv},
    OneLineCase{"BreakBeforeTheZero",            L"seen\r\n\0unseen"sv,        L"seen"sv},
    OneLineCase{"ZeroAtTheStart",                L"\0unseen"sv,                L""sv}),
    [](const auto& row) { return std::string{row.param.name}; });
// clang-format on

TEST(OneLine, KeepsATextOfTheLongestLength) {
    const std::wstring longest(kLongest, L'x');

    EXPECT_EQ(OneLine(longest), longest);
    EXPECT_EQ(OneLine(longest + L"\r\n"), longest);
}

TEST(OneLine, CutsALongerText) {
    EXPECT_EQ(OneLine(std::wstring(kLongest + 1, L'x')), std::wstring(kLongest, L'x'));
    EXPECT_EQ(OneLine(std::wstring(1'000'000, L'x')), std::wstring(kLongest, L'x'));
}

TEST(OneLine, CutsATextOfManyLines) {
    std::wstring many;
    for (std::size_t i = 0; i < kLongest; ++i) many += L"x\r\n";

    const std::wstring line = OneLine(many);

    EXPECT_EQ(line.size(), kLongest);
    EXPECT_EQ(line.substr(0, 4), L"x x ");
}

TEST(OneLine, IsNotCutInTheMiddleOfACharacter) {
    const std::wstring character = L"\U00020BB7"; // two units
    const std::wstring fits = std::wstring(kLongest - 2, L'x') + character;
    const std::wstring straddles = std::wstring(kLongest - 1, L'x') + character;

    EXPECT_EQ(OneLine(fits + L"y"), fits);
    EXPECT_EQ(OneLine(straddles), std::wstring(kLongest - 1, L'x'));
}
