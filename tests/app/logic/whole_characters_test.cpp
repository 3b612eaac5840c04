#include "app/logic/whole_characters.h"

#include <gtest/gtest.h>

using korvane::app::CutToLength;

namespace {

std::wstring Cut(std::wstring text, std::size_t longest) {
    CutToLength(text, longest);
    return text;
}

} // namespace

TEST(CutToLength, LeavesAShorterTextAsItIs) {
    EXPECT_EQ(Cut(L"", 3), L"");
    EXPECT_EQ(Cut(L"abc", 3), L"abc");
}

TEST(CutToLength, CutsALongerText) {
    EXPECT_EQ(Cut(L"abcd", 3), L"abc");
    EXPECT_EQ(Cut(L"abcd", 0), L"");
}

TEST(CutToLength, DropsACharacterOfWhichOnlyHalfWouldStay) {
    EXPECT_EQ(Cut(L"ab\U00020BB7", 3), L"ab");
    EXPECT_EQ(Cut(L"a\U00020BB7b", 3), L"a\U00020BB7");
}

TEST(CutToLength, LeavesHalfACharacterThatWasThereBefore) {
    const std::wstring half{L'a', wchar_t{0xD842}};

    EXPECT_EQ(Cut(half, 2), half);
}
