#include "controls/logic/button_state.h"

#include "controls/logic/bar_colour.h"

namespace korvane::controls {
namespace {

// Percent of the way from the background to white or black.
constexpr int kHotOnDark = 18;
constexpr int kPressedOnDark = 32;
constexpr int kHotOnLight = 9;
constexpr int kPressedOnLight = 18;

constexpr unsigned Toward(int from, int to, int percent) {
    return static_cast<unsigned>(from + (to - from) * percent / 100);
}

} // namespace

std::optional<base::Colour> PlateColour(base::Colour background, ButtonState state) {
    if (state != ButtonState::kHot && state != ButtonState::kPressed) return std::nullopt;
    const bool hot = state == ButtonState::kHot;
    const bool light = LooksLight(background);
    const int to = light ? 0 : 255;
    const int percent = light ? (hot ? kHotOnLight : kPressedOnLight) : (hot ? kHotOnDark : kPressedOnDark);
    return base::Colour::Rgb(Toward(background.Red(), to, percent), Toward(background.Green(), to, percent),
                             Toward(background.Blue(), to, percent));
}

} // namespace korvane::controls
