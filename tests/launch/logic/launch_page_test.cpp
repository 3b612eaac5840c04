#include "launch/logic/launch_page.h"

#include <gtest/gtest.h>

using namespace korvane::launch;

namespace {

std::string Enabled(int count, int selected) {
    const LaunchPageButtons b = LaunchPageButtonsFor(count, selected);
    std::string text;
    if (b.moveUp) text += "up ";
    if (b.moveDown) text += "down ";
    if (b.add) text += "add ";
    if (b.edit) text += "edit ";
    if (b.remove) text += "delete ";
    if (b.import) text += "import ";
    return text;
}

} // namespace

TEST(LaunchPageButtons, MoveOnlyWhereThereIsARowToMoveTo) {
    EXPECT_EQ(Enabled(5, 0), "down add edit delete import ");
    EXPECT_EQ(Enabled(5, 2), "up down add edit delete import ");
    EXPECT_EQ(Enabled(5, 4), "up add edit delete import ");
}

TEST(LaunchPageButtons, OnlyAddWithoutASelection) {
    EXPECT_EQ(Enabled(5, kNoRow), "add import ");
    EXPECT_EQ(Enabled(0, kNoRow), "add import ");
}

TEST(LaunchPageButtons, DeleteNothingOfThreeItems) {
    EXPECT_EQ(Enabled(3, 1), "up down add edit import ");
    EXPECT_EQ(Enabled(4, 1), "up down add edit delete import ");
    EXPECT_FALSE(CanDelete(3, 0));
    EXPECT_TRUE(CanDelete(4, 0));
    EXPECT_FALSE(CanDelete(10, kNoRow));
}

TEST(LaunchPageButtons, AddNothingToThirtyEightItems) {
    EXPECT_EQ(Enabled(37, 0), "down add edit delete import ");
    EXPECT_EQ(Enabled(38, 0), "down edit delete ");
}

TEST(InsertRow, IsBehindTheSelection) {
    EXPECT_EQ(InsertRow(5, 0, false), 1);
    EXPECT_EQ(InsertRow(5, 4, false), 5);
}

TEST(InsertRow, IsInFrontOfTheSelectionWithShift) {
    EXPECT_EQ(InsertRow(5, 0, true), 0);
    EXPECT_EQ(InsertRow(5, 4, true), 4);
}

TEST(InsertRow, IsTheBeginningWithoutASelectionAndTheEndWithShift) {
    EXPECT_EQ(InsertRow(5, kNoRow, false), 0);
    EXPECT_EQ(InsertRow(5, kNoRow, true), 5);
}

TEST(RowAfterDelete, IsTheSameOrTheNewLast) {
    EXPECT_EQ(RowAfterDelete(4, 0), 0);
    EXPECT_EQ(RowAfterDelete(4, 3), 3);
    EXPECT_EQ(RowAfterDelete(4, 4), 3);
}

TEST(FreePlaces, EndAtThirtyEightItems) {
    EXPECT_EQ(FreePlaces(3), 35);
    EXPECT_EQ(FreePlaces(36), 2);
    EXPECT_EQ(FreePlaces(38), 0);
    EXPECT_EQ(FreePlaces(50), 0);
}

TEST(RowLabel, CountsTheLaunchButtonsAndTheMenuApart) {
    EXPECT_EQ(RowLabel(0), L"[L-1]");
    EXPECT_EQ(RowLabel(2), L"[L-3]");
    EXPECT_EQ(RowLabel(3), L"[1]");
    EXPECT_EQ(RowLabel(37), L"[35]");
    EXPECT_TRUE(IsButtonRow(2));
    EXPECT_FALSE(IsButtonRow(3));
}
