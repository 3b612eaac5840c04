#include "app/logic/bar_colours.h"

#include <gtest/gtest.h>

using namespace korvane::app;
using korvane::base::Colour;

namespace {
constexpr Colour kSystem = Colour::Rgb(1, 2, 3);
constexpr Colour kUser = Colour::Rgb(4, 5, 6);
} // namespace

TEST(BarColour, ZeroIsTheThemeColour) {
    EXPECT_EQ(BarColour(0, kSystem, kUser), Colour::Rgb(159, 22, 106));
}

TEST(BarColour, TheThemeColourReads0x6A169FAsAColorref) {
    EXPECT_EQ(kThemeColour.value, 0x6A169FU);
}

TEST(BarColour, OneIsTheWindowManagersColour) {
    EXPECT_EQ(BarColour(1, kSystem, kUser), kSystem);
}

TEST(BarColour, TwoIsTheUsersColour) {
    EXPECT_EQ(BarColour(2, kSystem, kUser), kUser);
}

TEST(BarColour, AValueOutOfRangeCountsAsTheDefault) {
    EXPECT_EQ(BarColour(-1, kSystem, kUser), kSystem);
    EXPECT_EQ(BarColour(3, kSystem, kUser), kSystem);
}
