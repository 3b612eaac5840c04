#include "search/logic/placeholder_insertion.h"

#include <gtest/gtest.h>

#include "search/logic/placeholder_expansion.h"

using namespace korvane::search;

TEST(PlaceholderInsertion, ReplacesWhatIsSelectedWithATextPlaceholder) {
    for (std::size_t i = 0; i < 5; ++i)
        EXPECT_EQ(InsertionOf(kPlaceholders[i], 20, {3, 8}), (TextEdit{{3, 8}, kPlaceholders[i]})) << i;
}

TEST(PlaceholderInsertion, PutsATextPlaceholderWhereTheCaretIs) {
    EXPECT_EQ(InsertionOf(L"<%Search%>", 20, {20, 20}), (TextEdit{{20, 20}, L"<%Search%>"}));
    EXPECT_EQ(InsertionOf(L"<%Search%>", 0, {0, 0}), (TextEdit{{0, 0}, L"<%Search%>"}));
}

TEST(PlaceholderInsertion, PutsEverythingToTheStartAndReplacesNothing) {
    EXPECT_EQ(InsertionOf(L"<%Everything%>", 20, {3, 8}), (TextEdit{{0, 0}, L"<%Everything%>"}));
}

TEST(PlaceholderInsertion, ReplacesTheWholeLineWithAnEditorsPlaceholder) {
    EXPECT_EQ(InsertionOf(L"<%EmEditor%>", 20, {3, 8}), (TextEdit{{0, 20}, L"<%EmEditor%>"}));
    EXPECT_EQ(InsertionOf(L"<%Hidemaru%>", 20, {20, 20}), (TextEdit{{0, 20}, L"<%Hidemaru%>"}));
}

TEST(PlaceholderInsertion, KnowsTheEightPlaceholdersInTheOrderInWhichTheyAreOffered) {
    EXPECT_EQ(kPlaceholders, (std::array<std::wstring_view, 8>{L"<%Search%>", L"<%Search_UTF7%>", L"<%Search_SJIS%>",
                                                               L"<%Search_EUC%>", L"<%Search_UTF16%>",
                                                               L"<%Everything%>", L"<%EmEditor%>", L"<%Hidemaru%>"}));
}
