#include "controls/logic/button_state.h"

#include <gtest/gtest.h>

#include "controls/logic/bar_colour.h"

namespace korvane::controls {
namespace {

TEST(ButtonState, IsNormalWhenNothingIsTheMatter) {
    EXPECT_EQ(StateOf({}), ButtonState::kNormal);
}

TEST(ButtonState, IsNumberedAsTheVisualStylesAre) {
    EXPECT_EQ(static_cast<int>(ButtonState::kNormal), 1);
    EXPECT_EQ(static_cast<int>(ButtonState::kHot), 2);
    EXPECT_EQ(static_cast<int>(ButtonState::kPressed), 3);
    EXPECT_EQ(static_cast<int>(ButtonState::kDisabled), 4);
}

TEST(ButtonState, TakesPressedBeforeDisabledBeforeHot) {
    EXPECT_EQ(StateOf({.pressed = true, .disabled = true, .hot = true}), ButtonState::kPressed);
    EXPECT_EQ(StateOf({.disabled = true, .hot = true}), ButtonState::kDisabled);
    EXPECT_EQ(StateOf({.hot = true}), ButtonState::kHot);
}

TEST(ButtonState, IsPressedWhileTheMenuIsShown) {
    EXPECT_EQ(StateOf({.menuShown = true}), ButtonState::kPressed);
    EXPECT_EQ(StateOf({.menuShown = true, .disabled = true}), ButtonState::kPressed);
}

TEST(ButtonState, OfItselfDoesNotShowTheFocus) {
    EXPECT_EQ(StateOf({.focused = true}), ButtonState::kNormal);
}

TEST(ButtonState, ShowsTheFocusAsHotOnlyWhenToldTo) {
    EXPECT_EQ(StateOf({.focused = true, .focusShown = true}), ButtonState::kHot);
    EXPECT_EQ(StateOf({.focused = true, .focusShown = false}), ButtonState::kNormal);
    EXPECT_EQ(StateOf({.focusShown = true}), ButtonState::kNormal);
}

TEST(ButtonState, LetsTheFocusChangeNoOtherState) {
    EXPECT_EQ(StateOf({.pressed = true, .focused = true, .focusShown = true}), ButtonState::kPressed);
    EXPECT_EQ(StateOf({.disabled = true, .focused = true, .focusShown = true}), ButtonState::kDisabled);
}

TEST(ButtonState, ByTheMouseLeavesTheFocusOut) {
    EXPECT_EQ(StateByMouse({.focused = true, .focusShown = true}), ButtonState::kNormal);
    EXPECT_EQ(StateByMouse({.hot = true, .focused = true, .focusShown = true}), ButtonState::kHot);
}

TEST(StepButtonState, KnowsThreeStatesOnly) {
    EXPECT_EQ(StepButtonState({.pressed = true, .hot = true}), ButtonState::kPressed);
    EXPECT_EQ(StepButtonState({.disabled = true, .hot = true}), ButtonState::kHot);
    EXPECT_EQ(StepButtonState({.disabled = true}), ButtonState::kNormal);
}

TEST(Plate, IsThereOnlyUnderTheMouseAndWhenPressed) {
    const base::Colour bar = base::Colour::Rgb(159, 22, 106);

    EXPECT_FALSE(PlateColour(bar, ButtonState::kNormal).has_value());
    EXPECT_FALSE(PlateColour(bar, ButtonState::kDisabled).has_value());
    EXPECT_TRUE(PlateColour(bar, ButtonState::kHot).has_value());
    EXPECT_TRUE(PlateColour(bar, ButtonState::kPressed).has_value());
}

TEST(Plate, IsBrighterThanADarkGroundAndMoreSoWhenPressed) {
    const base::Colour dark = base::Colour::Rgb(32, 32, 32);

    const int hot = Brightness(*PlateColour(dark, ButtonState::kHot));
    const int pressed = Brightness(*PlateColour(dark, ButtonState::kPressed));

    EXPECT_GT(hot, 32 + 16);
    EXPECT_GT(pressed, hot + 16);
}

TEST(Plate, IsDarkerThanALightGroundAndMoreSoWhenPressed) {
    const base::Colour light = base::Colour::Rgb(240, 240, 240);

    const int hot = Brightness(*PlateColour(light, ButtonState::kHot));
    const int pressed = Brightness(*PlateColour(light, ButtonState::kPressed));

    EXPECT_LT(hot, 240 - 16);
    EXPECT_LT(pressed, hot - 16);
}

} // namespace
} // namespace korvane::controls
