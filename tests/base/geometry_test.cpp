#include "base/geometry.h"

#include <gtest/gtest.h>

namespace korvane::base {
namespace {

TEST(Rect, ExcludesItsRightAndBottomEdges) {
    constexpr Rect rect{10, 20, 30, 25};

    EXPECT_EQ(rect.Extent(), (Size{20, 5}));
    EXPECT_TRUE(rect.Contains({10, 20}));
    EXPECT_TRUE(rect.Contains({29, 24}));
    EXPECT_FALSE(rect.Contains({30, 24}));
    EXPECT_FALSE(rect.Contains({29, 25}));
    EXPECT_FALSE(rect.Contains({9, 20}));
    EXPECT_FALSE(rect.Contains({10, 19}));
}

TEST(Rect, IsEmptyWithoutExtentInEitherDirection) {
    EXPECT_TRUE((Rect{}.Empty()));
    EXPECT_TRUE((Rect{0, 0, 5, 0}.Empty()));
    EXPECT_TRUE((Rect{5, 0, 5, 9}.Empty()));
    EXPECT_TRUE((Rect{6, 0, 5, 9}.Empty()));
    EXPECT_FALSE((Rect{0, 0, 1, 1}.Empty()));
}

TEST(Rect, MovesAndShrinks) {
    EXPECT_EQ((Rect{1, 2, 3, 4}.Offset(10, -10)), (Rect{11, -8, 13, -6}));
    EXPECT_EQ((Rect{0, 0, 10, 8}.Inset(2)), (Rect{2, 2, 8, 6}));
    EXPECT_EQ((Rect{0, 0, 10, 8}.Inset(-1)), (Rect{-1, -1, 11, 9}));
    EXPECT_EQ(Rect::At({3, 4}, {5, 6}), (Rect{3, 4, 8, 10}));
}

TEST(Intersection, IsWhatBothHave) {
    EXPECT_EQ(Intersection({0, 0, 10, 10}, {5, -5, 15, 5}), (Rect{5, 0, 10, 5}));
    EXPECT_EQ(Intersection({0, 0, 10, 10}, {2, 3, 4, 5}), (Rect{2, 3, 4, 5}));
}

TEST(Intersection, IsEmptyWhereTheyOnlyTouch) {
    EXPECT_EQ(Intersection({0, 0, 10, 10}, {10, 0, 20, 10}), Rect{});
    EXPECT_EQ(Intersection({0, 0, 10, 10}, {50, 50, 60, 60}), Rect{});
}

TEST(Centred, RoundsHalvesTowardZero) {
    EXPECT_EQ(Centred({0, 0, 11, 10}, {4, 4}), (Rect{3, 3, 7, 7}));
    EXPECT_EQ(Centred({0, 0, 10, 10}, {13, 14}), (Rect{-1, -2, 12, 12}));
    EXPECT_EQ(Centred({-20, 100, -10, 110}, {3, 3}), (Rect{-17, 103, -14, 106}));
}

} // namespace
} // namespace korvane::base
