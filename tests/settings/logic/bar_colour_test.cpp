#include "settings/logic/bar_colour.h"

#include <gtest/gtest.h>

using namespace korvane::settings;
using korvane::base::Colour;

namespace {
constexpr Colour kSystem = Colour::Rgb(1, 2, 3);
constexpr Colour kUser = Colour::Rgb(4, 5, 6);
} // namespace

TEST(BarColour, ZeroIsTheThemeColour) {
    EXPECT_EQ(BarColour(0, kSystem, kUser), Colour::Rgb(159, 22, 106));
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
