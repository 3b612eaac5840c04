#include "base/dpi.h"

#include <gtest/gtest.h>

namespace korvane::base {
namespace {

TEST(DpiScale, LeavesEveryFigureAloneAtTheDesignsOwnDpi) {
    for (int px = -2000; px <= 2000; ++px) EXPECT_EQ(DpiScale{96}(px), px);
}

TEST(DpiScale, RoundsToNearestAndHalvesAwayFromZero) {
    EXPECT_EQ(DpiScale{120}(1), 1);
    EXPECT_EQ(DpiScale{120}(2), 3);
    EXPECT_EQ(DpiScale{120}(-2), -3);
    EXPECT_EQ(DpiScale{144}(1), 2);
    EXPECT_EQ(DpiScale{144}(-1), -2);
    EXPECT_EQ(DpiScale{144}(32), 48);
    EXPECT_EQ(DpiScale{192}(33), 66);
}

TEST(DpiScale, TakesNonsenseForTheDesignsOwnDpi) {
    EXPECT_EQ(DpiScale{}.Dpi(), 96);
    EXPECT_EQ(DpiScale{0}(7), 7);
    EXPECT_EQ(DpiScale{-120}(7), 7);
}

} // namespace
} // namespace korvane::base
