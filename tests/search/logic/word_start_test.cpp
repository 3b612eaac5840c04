#include "search/logic/word_start.h"

#include <gtest/gtest.h>

using korvane::search::WordStart;

namespace {

std::wstring WithoutLastWord(const std::wstring& text) {
    return text.substr(0, WordStart(text, text.size()));
}

} // namespace

TEST(WordStart, TakesTheLastWordWithTheBlanksBehindIt) {
    EXPECT_EQ(WithoutLastWord(L"notepad  readme"), L"notepad  ");
    EXPECT_EQ(WithoutLastWord(L"notepad  readme \t "), L"notepad  ");
    EXPECT_EQ(WithoutLastWord(L"東京　天気　"), L"東京　");
}

TEST(WordStart, EndsAWordWhereTheWritingChanges) {
    EXPECT_EQ(WithoutLastWord(L"C:\\temp\\readme.txt"), L"C:\\temp\\readme.");
    EXPECT_EQ(WithoutLastWord(L"C:\\temp\\"), L"C:\\temp");
    EXPECT_EQ(WithoutLastWord(L"東京タワー"), L"東京");
    EXPECT_EQ(WithoutLastWord(L"天気のよい日"), L"天気のよい");
    EXPECT_EQ(WithoutLastWord(L"天気のよい"), L"天気");
    EXPECT_EQ(WithoutLastWord(L"検索ABC１２３"), L"検索");
    EXPECT_EQ(WithoutLastWord(L"ﾃｽﾄabc"), L"ﾃｽﾄ");
    EXPECT_EQ(WithoutLastWord(L"人々"), L"");
}

TEST(WordStart, NeverStopsWithinAPair) {
    EXPECT_EQ(WithoutLastWord(L"ab\xD842\xDFB7"), L"ab");
    EXPECT_EQ(WithoutLastWord(L"a \xD83D\xDE00\xD83D\xDE00"), L"a ");
}

TEST(WordStart, HasNothingToTakeAtTheBeginning) {
    EXPECT_EQ(WordStart(L"abc", 0), 0U);
    EXPECT_EQ(WordStart(L"", 0), 0U);
    EXPECT_EQ(WordStart(L"   ", 3), 0U);
}

TEST(WordStart, BeginsAtTheCaretAndNotAtTheEnd) {
    EXPECT_EQ(WordStart(L"one two three", 7), 4U);
    EXPECT_EQ(WordStart(L"one two", 99), 4U);
}
