#include "controls/logic/content_layout.h"

#include <gtest/gtest.h>

namespace korvane::controls {
namespace {

using base::DpiScale;
using base::Rect;

constexpr DpiScale k100{96};

TEST(PushedContent, MovesOnePixelRightAndDownOnlyWhenPressed) {
    constexpr Rect kContent{10, 10, 26, 26};

    EXPECT_EQ(Pushed(kContent, ButtonState::kPressed, k100), (Rect{11, 11, 27, 27}));
    EXPECT_EQ(Pushed(kContent, ButtonState::kNormal, k100), kContent);
    EXPECT_EQ(Pushed(kContent, ButtonState::kHot, k100), kContent);
    EXPECT_EQ(Pushed(kContent, ButtonState::kDisabled, k100), kContent);
}

TEST(PushedContent, MovesByADesignPixel) {
    EXPECT_EQ(Pushed({0, 0, 32, 32}, ButtonState::kPressed, DpiScale{192}), (Rect{2, 2, 34, 34}));
}

TEST(TextDropLayout, PutsImageTextAndArrowInTheirPlaces) {
    const TextDropLayout layout = LayOutTextDrop({0, 0, 140, 22}, ButtonState::kNormal, k100);

    EXPECT_EQ(layout.image, (Rect{4, 3, 20, 19}));
    EXPECT_EQ(layout.text, (Rect{24, 0, 124, 22}));
    EXPECT_EQ(layout.arrow, (Rect{128, 9, 135, 13}));
}

TEST(TextDropLayout, MovesAllOfItWhenPressed) {
    const TextDropLayout layout = LayOutTextDrop({0, 0, 140, 22}, ButtonState::kPressed, k100);

    EXPECT_EQ(layout.image, (Rect{5, 4, 21, 20}));
    EXPECT_EQ(layout.text, (Rect{25, 1, 125, 23}));
    EXPECT_EQ(layout.arrow, (Rect{129, 10, 136, 14}));
}

TEST(TextDropLayout, KeepsFortyPixelsForIconAndArrow) {
    EXPECT_EQ(LayOutTextDrop({0, 0, 130, 32}, ButtonState::kNormal, k100).text.Width(), 130 - 40);
}

TEST(TextDropLayout, ScalesEveryFigure) {
    const TextDropLayout layout = LayOutTextDrop({0, 0, 280, 44}, ButtonState::kNormal, DpiScale{192});

    EXPECT_EQ(layout.image, (Rect{8, 6, 40, 38}));
    EXPECT_EQ(layout.text, (Rect{48, 0, 248, 44}));
    EXPECT_EQ(layout.arrow, (Rect{256, 18, 271, 26}));
}

TEST(MenuPictures, AreTheOnesDrawnForTheScreen) {
    EXPECT_EQ(MenuPicturesFor(96).onDark, 201U);
    EXPECT_EQ(MenuPicturesFor(96).onLight, 202U);
    EXPECT_EQ(MenuPicturesFor(120).onDark, 203U);
    EXPECT_EQ(MenuPicturesFor(120).onLight, 204U);
    EXPECT_EQ(MenuPicturesFor(144).onDark, 205U);
    EXPECT_EQ(MenuPicturesFor(192).onLight, 208U);
}

TEST(MenuPictures, AreTheNextCoarserOnesBetweenTwoScales) {
    EXPECT_EQ(MenuPicturesFor(168).onDark, 205U);
    EXPECT_EQ(MenuPicturesFor(300).onDark, 207U);
    EXPECT_EQ(MenuPicturesFor(72).onDark, 201U);
}

TEST(MenuPictures, AreDrawnInTheirOwnSizeOnTheScreenTheyAreFor) {
    EXPECT_EQ(DrawnSize({92, 20}, 96, 96), (base::Size{92, 20}));
    EXPECT_EQ(DrawnSize({115, 25}, 120, 120), (base::Size{115, 25}));
}

TEST(MenuPictures, AreEnlargedOnAFinerScreen) {
    EXPECT_EQ(DrawnSize({92, 20}, 96, 144), (base::Size{138, 30}));
}

TEST(MenuPictures, ThatCannotBeReadTakeNoRoom) {
    EXPECT_EQ(DrawnSize({0, 0}, 96, 144), (base::Size{0, 0}));
}

} // namespace
} // namespace korvane::controls
