#include "app/logic/bar_drop.h"

#include <gtest/gtest.h>

#include <vector>

using namespace korvane::app;

TEST(ActionOfDrop, TakesTextIntoBothBoxes) {
    EXPECT_EQ(ActionOfDrop(DropPlace::kCommandBox, {.text = true}), DropAction::kInsertText);
    EXPECT_EQ(ActionOfDrop(DropPlace::kSearchBox, {.text = true}), DropAction::kInsertText);
}

TEST(ActionOfDrop, TakesFilesIntoTheCommandInputBoxAndOntoTheLaunchButtons) {
    EXPECT_EQ(ActionOfDrop(DropPlace::kCommandBox, {.files = true}), DropAction::kEnterPaths);
    EXPECT_EQ(ActionOfDrop(DropPlace::kLaunchButton, {.files = true}), DropAction::kStartWith);
}

TEST(ActionOfDrop, PrefersTheFilesWhereBothAreOfferedAndBothWouldDo) {
    EXPECT_EQ(ActionOfDrop(DropPlace::kCommandBox, {.text = true, .files = true}), DropAction::kEnterPaths);
    EXPECT_EQ(ActionOfDrop(DropPlace::kSearchBox, {.text = true, .files = true}), DropAction::kInsertText);
}

TEST(ActionOfDrop, RefusesWhatHasNoUseThere) {
    EXPECT_EQ(ActionOfDrop(DropPlace::kSearchBox, {.files = true}), DropAction::kRefuse);
    EXPECT_EQ(ActionOfDrop(DropPlace::kLaunchButton, {.text = true}), DropAction::kRefuse);
    EXPECT_EQ(ActionOfDrop(DropPlace::kElsewhere, {.text = true, .files = true}), DropAction::kRefuse);
    EXPECT_EQ(ActionOfDrop(DropPlace::kCommandBox, {}), DropAction::kRefuse);
}

TEST(QuotedPaths, PutsEachPathIntoQuotationMarks) {
    EXPECT_EQ(QuotedPaths({}), L"");
    EXPECT_EQ(QuotedPaths(std::vector<std::wstring>{L"C:\\a.txt"}), L"\"C:\\a.txt\"");
    EXPECT_EQ(QuotedPaths(std::vector<std::wstring>{L"C:\\a b.txt", L"C:\\表.txt"}), L"\"C:\\a b.txt\" \"C:\\表.txt\"");
}

TEST(WithAppended, SeparatesWithOneBlankWhereThereIsSomethingToSeparate) {
    EXPECT_EQ(WithAppended(L"notepad", L"x"), L"notepad x");
    EXPECT_EQ(WithAppended(L"notepad ", L"x"), L"notepad x");
    EXPECT_EQ(WithAppended(L"", L"x"), L"x");
    EXPECT_EQ(WithAppended(L"notepad", L""), L"notepad");
}
