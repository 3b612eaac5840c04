#include "controls/logic/bar_colour.h"

#include <gtest/gtest.h>

namespace korvane::controls {
namespace {

using base::Colour;

TEST(LightBar, BeginsAt193OnInItsDarkestByte) {
    EXPECT_TRUE(IsLightBar(Colour::Rgb(193, 193, 193)));
    EXPECT_FALSE(IsLightBar(Colour::Rgb(192, 255, 255)));
    EXPECT_FALSE(IsLightBar(Colour::Rgb(255, 192, 255)));
    EXPECT_FALSE(IsLightBar(Colour::Rgb(255, 255, 192)));
    EXPECT_TRUE(IsLightBar(Colour::Rgb(255, 255, 255)));
    EXPECT_FALSE(IsLightBar(Colour::Rgb(159, 22, 106)));
}

TEST(LightBar, OfTheSystemDefaultCountsAsLight) {
    EXPECT_TRUE(IsLightBar(kSystemDefaultColour));
}

TEST(BarTextColour, IsTheWindowTextOnALightBar) {
    EXPECT_EQ(TextColourOn(Colour::Rgb(200, 200, 200)), BarTextColour::kWindowText);
    EXPECT_EQ(TextColourOn(Colour::Rgb(193, 193, 193)), BarTextColour::kWindowText);
}

TEST(BarTextColour, IsTheWindowBackgroundOnADarkBar) {
    EXPECT_EQ(TextColourOn(Colour::Rgb(200, 200, 100)), BarTextColour::kWindow);
    EXPECT_EQ(TextColourOn(Colour::Rgb(192, 192, 192)), BarTextColour::kWindow);
}

TEST(BarTextColour, IsTheButtonTextForTheSystemDefault) {
    EXPECT_EQ(TextColourOn(kSystemDefaultColour), BarTextColour::kButtonText);
    EXPECT_EQ(TextColourOn(Colour::Rgb(255, 255, 255)), BarTextColour::kWindowText);
}

TEST(HighContrastText, IsTheWindowsUntilTheButtonIsHighlighted) {
    EXPECT_EQ(TextColourInHighContrast(ButtonState::kNormal), BarTextColour::kWindowText);
    EXPECT_EQ(TextColourInHighContrast(ButtonState::kHot), BarTextColour::kHighlightText);
    EXPECT_EQ(TextColourInHighContrast(ButtonState::kPressed), BarTextColour::kHighlightText);
    EXPECT_EQ(TextColourInHighContrast(ButtonState::kDisabled), BarTextColour::kGreyText);
}

} // namespace
} // namespace korvane::controls
