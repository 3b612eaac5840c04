#include "controls/logic/menu_placement.h"

#include <gtest/gtest.h>

namespace korvane::controls {
namespace {

constexpr base::Rect kButton{4, 0, 124, 32};

TEST(MenuHeight, CountsRowsSeparatorsAndTheFrame) {
    EXPECT_EQ(EstimatedMenuHeight(10, 2, 20, base::DpiScale{96}), 20 * 8 + 8 * 2 + 6);
    EXPECT_EQ(EstimatedMenuHeight(0, 0, 20, base::DpiScale{96}), 6);
}

TEST(MenuHeight, ScalesItsOwnFiguresAndLeavesTheSystemsRow) {
    EXPECT_EQ(EstimatedMenuHeight(10, 2, 30, base::DpiScale{144}), 30 * 8 + 12 * 2 + 9);
}

TEST(MenuPlacement, IsBelowTheButtonWhereTheMenuFits) {
    EXPECT_EQ(PlaceMenu(kButton, 182, 800), (MenuPlacement{322, {4, 32}}));
}

TEST(MenuPlacement, IsBelowWhenTheMenuFitsToThePixel) {
    EXPECT_EQ(PlaceMenu(kButton, 182, 32 + 182), (MenuPlacement{322, {4, 32}}));
}

TEST(MenuPlacement, IsAboveWhenOnePixelIsMissing) {
    EXPECT_EQ(PlaceMenu(kButton, 182, 32 + 181), (MenuPlacement{354, {4, 0}}));
}

TEST(MenuPlacement, IsAboveAButtonAtTheBottomOfTheScreen) {
    EXPECT_EQ(PlaceMenu({4, 768, 124, 800}, 182, 768), (MenuPlacement{354, {4, 768}}));
}

} // namespace
} // namespace korvane::controls
