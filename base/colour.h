#pragma once

#include <algorithm>
#include <cstdint>

namespace korvane::base {

// A colour in the layout of Windows' COLORREF, 0x00BBGGRR.
struct Colour {
    std::uint32_t value = 0;

    [[nodiscard]] constexpr int Red() const { return static_cast<int>(value & 0xFFU); }
    [[nodiscard]] constexpr int Green() const { return static_cast<int>((value >> 8) & 0xFFU); }
    [[nodiscard]] constexpr int Blue() const { return static_cast<int>((value >> 16) & 0xFFU); }
    [[nodiscard]] constexpr int Darkest() const { return std::min({Red(), Green(), Blue()}); }

    static constexpr Colour Rgb(unsigned red, unsigned green, unsigned blue) {
        return {(red & 0xFFU) | ((green & 0xFFU) << 8) | ((blue & 0xFFU) << 16)};
    }
    // The desktop window manager reports its colour as 0xAARRGGBB. The alpha is dropped.
    static constexpr Colour FromArgb(std::uint32_t argb) {
        return Rgb((argb >> 16) & 0xFFU, (argb >> 8) & 0xFFU, argb & 0xFFU);
    }
    friend constexpr bool operator==(const Colour&, const Colour&) = default;
};

// The product's own colour.
inline constexpr Colour kThemeColour = Colour::Rgb(159, 22, 106);

} // namespace korvane::base
