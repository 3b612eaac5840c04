#include "search/logic/drop_down_place.h"

#include <gtest/gtest.h>

using namespace korvane;
using namespace korvane::search;

namespace {

constexpr base::Rect kWork{0, 32, 1280, 800};
constexpr base::Size kNatural{230, 140};

} // namespace

TEST(DropDownPlace, IsBelowTheRegionAndAsWide) {
    EXPECT_EQ(PlaceDropDown({{127, 4, 500, 28}, kNatural, kWork}), (base::Rect{127, 28, 500, 168}));
}

TEST(DropDownPlace, IsNoNarrowerThanThePopUpAsksFor) {
    EXPECT_EQ(PlaceDropDown({{127, 4, 327, 28}, kNatural, kWork}), (base::Rect{127, 28, 357, 168}));
}

TEST(DropDownPlace, IsAboveTheRegionWhereThereIsNoRoomBelow) {
    EXPECT_EQ(PlaceDropDown({{127, 772, 500, 796}, kNatural, {0, 0, 1280, 768}}), (base::Rect{127, 632, 500, 772}));
}

TEST(DropDownPlace, TakesTheLargerSideWhenNeitherHasRoom) {
    EXPECT_EQ(PlaceDropDown({{0, 40, 300, 60}, kNatural, {0, 0, 400, 120}}).top, 60);
    EXPECT_EQ(PlaceDropDown({{0, 80, 300, 100}, kNatural, {0, 0, 400, 120}}).top, 80 - 140);
}

TEST(DropDownPlace, StaysWithinTheWorkAreaAtTheSides) {
    EXPECT_EQ(PlaceDropDown({{1200, 4, 1300, 28}, kNatural, kWork}).right, 1280);
    EXPECT_EQ(PlaceDropDown({{-50, 4, 100, 28}, kNatural, kWork}).left, 0);
}

TEST(DropDownPlace, ShowsTheLeftPartOnAMonitorThatIsTooNarrow) {
    EXPECT_EQ(PlaceDropDown({{1300, 4, 1500, 28}, {500, 140}, {1280, 0, 1580, 800}}).left, 1280);
}
