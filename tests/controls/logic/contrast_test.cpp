#include "controls/logic/contrast.h"

#include <gtest/gtest.h>

#include <vector>

#include "controls/logic/bar_colour.h"
#include "controls/logic/calendar_month.h"

namespace korvane::controls {
namespace {

using base::Colour;

constexpr Colour kBlack = Colour::Rgb(0, 0, 0);
constexpr Colour kWhite = Colour::Rgb(255, 255, 255);
constexpr Colour kYellow = Colour::Rgb(255, 255, 0);
constexpr Colour kMidGrey = Colour::Rgb(128, 128, 128);

// Every fifteenth shade of each channel, the ends included.
std::vector<Colour> ColourCube() {
    std::vector<Colour> cube;
    for (unsigned red = 0; red <= 255; red += 15)
        for (unsigned green = 0; green <= 255; green += 15)
            for (unsigned blue = 0; blue <= 255; blue += 15) cube.push_back(Colour::Rgb(red, green, blue));
    return cube;
}

// What stands right around the ink.
Colour Surroundings(Colour ink, Colour ground, double wanted = kLegible) {
    return OutlineOf(ink, ground, wanted).value_or(ground);
}

TEST(Contrast, IsThatOfTheGuidelines) {
    EXPECT_DOUBLE_EQ(Contrast(kWhite, kBlack), 21);
    EXPECT_DOUBLE_EQ(Contrast(kMidGrey, kMidGrey), 1);
    EXPECT_NEAR(Contrast(Colour::Rgb(119, 119, 119), kWhite), 4.48, 0.005);
    EXPECT_NEAR(Contrast(Colour::Rgb(118, 118, 118), kWhite), 4.54, 0.005);
    EXPECT_NEAR(Contrast(Colour::Rgb(255, 0, 0), kWhite), 4.00, 0.005);
}

TEST(Contrast, IsTheSameEitherWayRound) {
    EXPECT_DOUBLE_EQ(Contrast(kYellow, kMidGrey), Contrast(kMidGrey, kYellow));
}

// The text is in the system's colours for the bar's brightness; what is around it makes up for the rest.
TEST(Outline, MakesTheTextLegibleOnEveryColourOfTheBar) {
    for (const Colour bar : ColourCube()) {
        const Colour text = TextColourOn(bar) == BarTextColour::kWindow ? kWhite : kBlack;
        EXPECT_GE(Contrast(text, Surroundings(text, bar)), kLegible) << bar.value;
    }
}

TEST(Outline, MakesTheDaysOfOtherMonthsVisibleOnEveryColourOfTheBar) {
    for (const Colour bar : ColourCube()) {
        const Colour text = TextColourOn(bar) == BarTextColour::kWindow ? kWhite : kBlack;
        const Colour dim = Between(bar, text);
        EXPECT_GE(Contrast(dim, Surroundings(dim, bar, kReceding)), kReceding) << bar.value;
    }
}

TEST(Outline, MakesBlackAndWhiteLegibleOnEveryGround) {
    for (const Colour ground : ColourCube())
        for (const Colour ink : {kBlack, kWhite})
            EXPECT_GE(Contrast(ink, Surroundings(ink, ground)), kLegible) << ground.value;
}

TEST(Outline, IsNotThereWhereTheTextStandsOutByItself) {
    EXPECT_EQ(OutlineOf(kWhite, base::kThemeColour), std::nullopt);
    EXPECT_EQ(OutlineOf(kWhite, kBlack), std::nullopt);
    EXPECT_EQ(OutlineOf(kBlack, kWhite), std::nullopt);
    EXPECT_EQ(OutlineOf(kBlack, Colour::Rgb(193, 193, 193)), std::nullopt);
}

TEST(Outline, IsThereForWhiteOnYellow) {
    ASSERT_TRUE(OutlineOf(kWhite, kYellow).has_value());
}

TEST(Outline, StandsOutMoreThanASurfaceMust) {
    EXPECT_GE(Contrast(kWhite, OutlineOf(kWhite, kYellow).value_or(kYellow)), 1.5 * kLegible);
    EXPECT_GE(Contrast(kWhite, OutlineOf(kWhite, kMidGrey).value_or(kMidGrey)), 1.5 * kLegible);
}

TEST(Outline, KeepsTheTintOfTheGround) {
    const Colour outline = OutlineOf(kWhite, kYellow).value_or(kWhite);

    EXPECT_EQ(outline.Red(), outline.Green());
    EXPECT_GT(outline.Red(), 64);
    EXPECT_EQ(outline.Blue(), 0);
}

TEST(Outline, IsLighterThanTheGroundOfADarkInk) {
    const Colour outline = OutlineOf(kBlack, Colour::Rgb(64, 64, 64)).value_or(kBlack);

    EXPECT_GT(outline.Red(), 64);
}

TEST(Outline, DoesItsBestForAnInkThatNothingMakesLegibleEnough) {
    EXPECT_EQ(OutlineOf(kMidGrey, kMidGrey, 15), kBlack);
}

TEST(Readable, InkIsLegibleOnEveryGround) {
    for (const Colour ground : ColourCube()) EXPECT_GE(Contrast(ReadableOn(ground), ground), kLegible) << ground.value;
}

TEST(Readable, InkStandsOutFromItsGround) {
    EXPECT_EQ(ReadableOn(kYellow), kBlack);
    EXPECT_EQ(ReadableOn(Colour::Rgb(159, 22, 106)), kWhite);
}

TEST(Readable, InkOfTheGroundsBrightnessVanishes) {
    EXPECT_TRUE(Vanishes(kWhite, Colour::Rgb(250, 250, 250)));
    EXPECT_TRUE(Vanishes(kBlack, Colour::Rgb(20, 20, 20)));
    EXPECT_FALSE(Vanishes(kWhite, Colour::Rgb(159, 22, 106)));
    EXPECT_FALSE(Vanishes(kBlack, Colour::Rgb(240, 240, 240)));
}

} // namespace
} // namespace korvane::controls
