#pragma once

#include <optional>

#include "base/colour.h"

// How well one colour can be told from another, in the measure of the Web Content Accessibility Guidelines.
namespace korvane::controls {

// From 1, for the same colour, to 21, for black and white; the order does not matter.
[[nodiscard]] double Contrast(base::Colour a, base::Colour b);

// What a text needs, what an arrow or a line needs, and what is enough for a text that is meant to recede.
inline constexpr double kLegible = 4.5;
inline constexpr double kVisible = 3;
inline constexpr double kReceding = kLegible / 2;

// Black or white, whichever stands out more: there is no colour on which neither is legible.
[[nodiscard]] base::Colour ReadableOn(base::Colour ground);

// True for an ink that can hardly be told from its ground.
[[nodiscard]] inline bool Vanishes(base::Colour ink, base::Colour ground) {
    return Contrast(ink, ground) < kVisible;
}

// What is to be drawn around an ink that does not stand out from its ground by `needed`: the ground's own colour,
// darker or lighter until the ink stands out from it well. Empty where nothing is needed.
[[nodiscard]] std::optional<base::Colour> OutlineOf(base::Colour ink, base::Colour ground, double needed = kLegible);

} // namespace korvane::controls
