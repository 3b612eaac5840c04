#include "base/colour.h"

#include <gtest/gtest.h>

namespace korvane::base {
namespace {

TEST(Colour, HasRedInItsLowestByte) {
    const Colour colour = Colour::Rgb(159, 22, 106);

    EXPECT_EQ(colour.value, 0x006A169FU);
    EXPECT_EQ(colour.Red(), 159);
    EXPECT_EQ(colour.Green(), 22);
    EXPECT_EQ(colour.Blue(), 106);
}

TEST(Colour, DropsTheAlphaOfTheWindowManagersColour) {
    EXPECT_EQ(Colour::FromArgb(0xC46A169FU), Colour::Rgb(0x6A, 0x16, 0x9F));
    EXPECT_EQ(Colour::FromArgb(0x006A169FU), Colour::FromArgb(0xFF6A169FU));
}

TEST(Colour, TakesNoMoreThanAByteOfEachPart) {
    EXPECT_EQ(Colour::Rgb(0x101, 0x102, 0xFFFFFF03U), Colour::Rgb(1, 2, 3));
}

TEST(Colour, FindsItsSmallestPart) {
    EXPECT_EQ(Colour::Rgb(193, 200, 255).Darkest(), 193);
    EXPECT_EQ(Colour::Rgb(200, 193, 255).Darkest(), 193);
    EXPECT_EQ(Colour::Rgb(255, 200, 193).Darkest(), 193);
    EXPECT_EQ(Colour{0xFFFFFFFFU}.Darkest(), 255);
}

TEST(Colour, OfTheProductIsAPurplishRed) {
    EXPECT_EQ(kThemeColour.value, 0x6A169Fu);
}

} // namespace
} // namespace korvane::base
