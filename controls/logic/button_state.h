#pragma once

#include <optional>

#include "base/colour.h"

namespace korvane::controls {

// How a button looks. The numbers are the states of the visual styles' button parts.
enum class ButtonState { kNormal = 1, kHot = 2, kPressed = 3, kDisabled = 4 };

// What decides the look at the moment of painting.
struct ButtonFacts {
    bool pressed = false;
    bool menuShown = false;
    bool disabled = false;
    bool hot = false;
    bool focused = false;
    bool focusShown = false; // whether the button is to tell that it has the keyboard focus

    [[nodiscard]] constexpr bool ShowsFocus() const { return focused && focusShown; }
};

// A button whose menu is open stays pressed although the mouse has long been let go.
[[nodiscard]] constexpr ButtonState StateByMouse(const ButtonFacts& facts) {
    if (facts.pressed || facts.menuShown) return ButtonState::kPressed;
    if (facts.disabled) return ButtonState::kDisabled;
    return facts.hot ? ButtonState::kHot : ButtonState::kNormal;
}

// The keyboard focus, where it is shown, is shown in the way of the mouse.
[[nodiscard]] constexpr ButtonState StateOf(const ButtonFacts& facts) {
    const ButtonState state = StateByMouse(facts);
    return state == ButtonState::kNormal && facts.ShowsFocus() ? ButtonState::kHot : state;
}

// A step button has no disabled look.
[[nodiscard]] constexpr ButtonState StepButtonState(const ButtonFacts& facts) {
    if (facts.pressed) return ButtonState::kPressed;
    return facts.hot ? ButtonState::kHot : ButtonState::kNormal;
}

// The flat plate of a button for which the visual style has nothing: the background brightened on a dark ground and
// darkened on a light one, more so when pressed. Empty where the background simply stays.
[[nodiscard]] std::optional<base::Colour> PlateColour(base::Colour background, ButtonState state);

} // namespace korvane::controls
